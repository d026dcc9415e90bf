Application Pattern
Application type:	0
PEC-Type:	2
Regular application date:	10	15
Application rate (g/ha):	600
Crop interception (%):	0
Time between applications:	14
Number of applications per year:	2
Date	Month	Rate (g/ha)	Interception (%)
15	10	600	0
29	10	600	0
-----------------------------------------------
