Application Pattern
Application type:	1
PEC-Type:	1
Regular application date:	4	20
Application rate (g/ha):	350
Crop interception (%):	20
Time between applications:	10
Number of applications per year:	3
Date	Month	Rate (g/ha)	Interception (%)
20	04	350	20
30	04	350	20
10	05	350	20
-----------------------------------------------
