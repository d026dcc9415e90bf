Application Pattern
Application type:	1
PEC-Type:	0
Regular application date:	3	1
Application rate (g/ha):	80
Crop interception (%):	30
Time between applications:	14
Number of applications per year:	20
Date	Month	Rate (g/ha)	Interception (%)
01	03	80	30
15	03	80	30
29	03	80	30
12	04	80	30
26	04	80	30
10	05	80	30
24	05	80	30
07	06	80	30
21	06	80	30
05	07	80	30
19	07	80	30
02	08	80	30
16	08	80	30
30	08	80	30
13	09	80	30
27	09	80	30
11	10	80	30
25	10	80	30
08	11	80	30
22	11	80	30
-----------------------------------------------
