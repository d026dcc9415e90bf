Application Pattern
Application type:	2
PEC-Type:	0
Regular application date:	4	1
Application rate (g/ha):	1000
Crop interception (%):	0
Time between applications:	14
Number of applications per year:	2
Date	Month	Rate (g/ha)	Interception (%)
01	06	100	0
01	06	100	0
-----------------------------------------------
