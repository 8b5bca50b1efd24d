theme
2
a.gif,5
night.css,57
<==MS-Theme==>12345<==MS-Theme==>.mstheme { a: url(../../_themes/b/b.gif); b: url(a.gif) }