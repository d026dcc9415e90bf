Application Pattern
Application type:	2
PEC-Type:	0
Regular application date:	5	15
Application rate (g/ha):	1000
Crop interception (%):	0
Time between applications:	14
Number of applications per year:	5
Date	Month	Rate (g/ha)	Interception (%)
15	05	400	50
01	06	400	60
20	06	300	60
10	07	300	75
05	08	250	75
-----------------------------------------------
