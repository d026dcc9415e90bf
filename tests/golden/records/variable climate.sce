Soil Parameters
Soil scenario:     	Sandy loam, "dry"
Soil density (kg/L):	1.5
Soil depth (cm):	5
Plateaudepth:	20
Organic carbon content:	1.25
Field capacity (Vol%):	30.5
Wilting point (Vol%):	10.1
Climatic condition:	Temperate site
Climate mode:	1
Scenario Temperature:	21
-----------------------------------------------
