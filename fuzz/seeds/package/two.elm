theme
2
a.gif,5
b.css,3
<==MS-Theme==>12345<==MS-Theme==>abc