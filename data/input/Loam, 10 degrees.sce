Soil Parameters
Soil scenario:     	Loam
Soil density (kg/L):	1.45
Soil depth (cm):	5
Plateaudepth:	20
Organic carbon content:	1.8
Field capacity (Vol%):	33
Wilting point (Vol%):	12
Climatic condition:	10 °C constant
Climate mode:	0
Scenario Temperature:	10
-----------------------------------------------
