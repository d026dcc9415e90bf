Application Pattern
Application type:	2
PEC-Type:	1
Regular application date:	3	25
Application rate (g/ha):	1000
Crop interception (%):	0
Time between applications:	14
Number of applications per year:	2
Date	Month	Rate (g/ha)	Interception (%)
25	03	250	80
20	09	500	40
-----------------------------------------------
