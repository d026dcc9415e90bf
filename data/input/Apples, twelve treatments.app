Application Pattern
Application type:	1
PEC-Type:	0
Regular application date:	4	5
Application rate (g/ha):	187.5
Crop interception (%):	65
Time between applications:	10
Number of applications per year:	12
Date	Month	Rate (g/ha)	Interception (%)
05	04	187.5	65
15	04	187.5	65
25	04	187.5	65
05	05	187.5	65
15	05	187.5	65
25	05	187.5	65
04	06	187.5	65
14	06	187.5	65
24	06	187.5	65
04	07	187.5	65
14	07	187.5	65
24	07	187.5	65
-----------------------------------------------
