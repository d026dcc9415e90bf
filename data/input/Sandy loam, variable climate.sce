Soil Parameters
Soil scenario:     	Sandy loam
Soil density (kg/L):	1.5
Soil depth (cm):	5
Plateaudepth:	20
Organic carbon content:	1.1
Field capacity (Vol%):	26
Wilting point (Vol%):	8.5
Climatic condition:	Temperate site
Climate mode:	1
Scenario Temperature:	20
-----------------------------------------------
