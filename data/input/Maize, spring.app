Application Pattern
Application type:	0
PEC-Type:	2
Regular application date:	5	10
Application rate (g/ha):	750
Crop interception (%):	25
Time between applications:	14
Number of applications per year:	2
Date	Month	Rate (g/ha)	Interception (%)
10	05	750	25
24	05	750	25
-----------------------------------------------
