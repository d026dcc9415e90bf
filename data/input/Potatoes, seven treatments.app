Application Pattern
Application type:	1
PEC-Type:	2
Regular application date:	6	1
Application rate (g/ha):	150
Crop interception (%):	50
Time between applications:	7
Number of applications per year:	7
Date	Month	Rate (g/ha)	Interception (%)
01	06	150	50
08	06	150	50
15	06	150	50
22	06	150	50
29	06	150	50
06	07	150	50
13	07	150	50
-----------------------------------------------
