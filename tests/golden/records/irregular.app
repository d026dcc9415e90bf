Application Pattern
Application type:	2
PEC-Type:	1
Regular application date:	3	31
Application rate (g/ha):	750.5
Crop interception (%):	25
Time between applications:	14
Number of applications per year:	3
Date	Month	Rate (g/ha)	Interception (%)
01	04	100	0
15	04	200.5	12.5
30	11	75	50
-----------------------------------------------
