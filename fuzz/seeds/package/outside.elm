theme
1
..\..\a.gif,1
<==MS-Theme==>1