Soil Parameters
Soil scenario:     	Sandy loam
Soil density (kg/L):	1.5
Soil depth (cm):	5
Plateaudepth:	20
Organic carbon content:	1
Field capacity (Vol%):	30
Wilting point (Vol%):	10
Climatic condition:	20 °C constant
Climate mode:	0
Scenario Temperature:	20
-----------------------------------------------
