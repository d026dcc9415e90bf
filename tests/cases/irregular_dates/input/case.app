Application Pattern
Application type:	2
PEC-Type:	0
Regular application date:	4	1
Application rate (g/ha):	1000
Crop interception (%):	0
Time between applications:	14
Number of applications per year:	3
Date	Month	Rate (g/ha)	Interception (%)
15	05	100	0
01	06	200	0
01	10	300	50
-----------------------------------------------
