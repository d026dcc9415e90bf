Application Pattern
Application type:	1
PEC-Type:	0
Regular application date:	4	1
Application rate (g/ha):	100
Crop interception (%):	25
Time between applications:	14
Number of applications per year:	3
Date	Month	Rate (g/ha)	Interception (%)
01	04	0	0
01	04	0	0
01	04	0	0
-----------------------------------------------
