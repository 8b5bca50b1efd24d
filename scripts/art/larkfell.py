"""The sample web: the pages of a village observatory, as an editor of 2003 wrote them."""

from art import almanac, orrery, photos, theme_folder

PAGES = [("index.htm", "Home"), ("news.htm", "News"), ("gallery/index.htm", "Gallery"), ("visit.htm", "Visit us"),
         ("links.htm", "Links")]


def files():
    """The web's files by address."""
    web = {}
    for address, (title, text, encoding) in pages().items():
        data = text.replace("\n", "\r\n").encode(encoding)
        folder, _, name = address.rpartition("/")
        web[address] = data
        web[f"{folder}/_vti_cnf/{name}".lstrip("/")] = theme_folder.note(data, title)
    for name, data in photos.pictures().items():
        web[f"images/{name}"] = data
        web[f"images/_vti_cnf/{name}"] = theme_folder.note(data)
    for theme in (almanac, orrery):
        for name, data in theme_folder.files(theme).items():
            web[f"_themes/{theme.NAME}/{name}"] = data
    web["_themes/themes.inf"] = b"[fonts]\r\n1=Georgia,Times New Roman,Times\r\n2=Trebuchet MS,Verdana,Arial,Helvetica\r\n"
    web["_vti_pvt/service.cnf"] = (b"vti_encoding:SR|utf8-nl\r\nvti_extenderversion:SR|6.0.2.5420\r\n"
                                   b"vti_title:SR|Larkfell Observatory\r\n")
    return web


def pages():
    """(title, text, encoding) of each page by address."""
    return {
        "index.htm": page("index.htm", "Larkfell Observatory", HOME),
        "news.htm": page("news.htm", "Observatory News", NEWS, encoding="utf-8"),
        "gallery/index.htm": page("gallery/index.htm", "Gallery", GALLERY),
        "visit.htm": ("Visiting Larkfell", VISIT, "cp1252"),
        "links.htm": ("Links", LINKS, "cp1252"),
    }


def page(address, title, content, encoding="cp1252"):
    """A page in the web's own theme. `~` in its content stands for the way up to the web's root."""
    up = "../" * address.count("/")
    if encoding == "utf-8":
        charset, sheet = "utf-8", "orre1011-65001.css"
        theme = '<meta content="orrery 1011, default" name="Microsoft Theme">'
    else:
        charset, sheet = "windows-1252", "orre1011.css"
        theme = '<meta name="Microsoft Theme" content="orrery 1011, default">'
    text = FRAME.format(title=title, charset=charset, sheet=sheet, theme=theme, buttons=buttons(address),
                        links=quick_links(address), content=content)
    return title, text.replace("~", up), encoding


def buttons(address):
    """The vertical navigation bar; the page that is open shows its button pushed."""
    rows = []
    for target, name in PAGES:
        here = target == address
        face, color = ("orrvbpa.gif", "#F2B544") if here else ("orrvbna.gif", "#FFFFFF")
        label = name if here else f'<a href="~{target}" style="color: {color}; text-decoration: none">{name}</a>'
        rows.append(f'<tr>\n<td width="150" height="40" background="~_themes/orrery/{face}">'
                    f'<p style="margin-left: 38px"><b><font color="{color}">{label}</font></b></td>\n</tr>\n')
    return "".join(rows)


def quick_links(address):
    order = [target for target, _ in PAGES]
    at = order.index(address)
    links = [("prev", order[at - 1], "Back"), ("home", "index.htm", "Home"), ("up", address.rpartition("/")[2], "Up"),
             ("next", order[(at + 1) % len(order)], "Next")]
    return "\n".join(
        f'<a href="{target if name == "Up" else "~" + target}"><img border="0" src="~_themes/orrery/orr{link}n.gif" '
        f'width="36" height="36" alt="{name}" hspace="6"></a>' for link, target, name in links)


FRAME = """\
<html>

<head>
<meta http-equiv="Content-Language" content="en-gb">
<meta http-equiv="Content-Type" content="text/html; charset={charset}">
<meta name="ProgId" content="FrontPage.Editor.Document">
<title>{title}</title>
<!--mstheme--><link rel="stylesheet" type="text/css" href="~_themes/orrery/{sheet}">{theme}
</head>

<body>

<div align="center">
<table border="0" cellpadding="0" cellspacing="0" width="780">
<tr>
<td width="160" align="center"><img border="0" src="~images/logo.gif" width="150" height="80" alt="The dome"></td>
<td width="20">&nbsp;</td>
<td width="600" height="80" background="~_themes/orrery/orrbnra.gif"><p style="margin-left: 26px">
<font face="Georgia,Times New Roman" size="6" color="#FFFFFF">{title}</font></td>
</tr>
<tr>
<td width="160" valign="top" align="center"><br>
<!--webbot bot="Navigation" S-Type="siblings" S-Orientation="vertical" S-Rendering="graphics" startspan -->
<table border="0" cellpadding="0" cellspacing="0">
{buttons}</table>
<!--webbot bot="Navigation" endspan -->
<p><font size="1">Stars for the village<br>
since 2001</font></p>
</td>
<td width="20">&nbsp;</td>
<td width="600" valign="top" style="padding-top: 12px">
{content}
<!--msthemeseparator--><p align="center"><img src="~_themes/orrery/orrrulea.gif" width="560" height="16"></p>
<p align="center">
{links}</p>
</td>
</tr>
</table>
</div>

</body>

</html>
"""

HOME = """\
<table border="0" cellpadding="0" cellspacing="0" width="600">
<tr>
<td valign="top">
<h2>A dome on the hill, open to all</h2>
<p>On the first clear Friday of every month we unlock the dome above Larkfell, let the big reflector cool down
and show the sky to whoever has walked up. There is tea, there are blankets, and there is no charge.</p>
<p><img src="~images/new.gif" width="18" height="18" align="absmiddle"> <b>Mars is back:</b> see our
<a href="~news.htm">news</a> for the extra nights in November.</p>
</td>
<td width="20">&nbsp;</td>
<td width="270" valign="top"><br>
<img border="0" src="~images/dome.jpg" width="270" height="190" alt="The dome at dusk"></td>
</tr>
</table>
<!--msthemeseparator--><p align="center"><img src="~_themes/orrery/orrrulea.gif" width="560" height="16"></p>
<table border="0" cellpadding="0" cellspacing="0" width="600">
<tr>
<td width="300" valign="top">
<h3>Tonight’s sky</h3>
<ul>
<li>Saturn, high in the south-east
<ul>
<li>rings wide open this winter</li>
<li>Titan, two ring widths to the west</li>
</ul>
</li>
<li>The Moon, five days old
<ul>
<li>look along its edge for craters</li>
</ul>
</li>
<li>Andromeda, for eyes without a telescope</li>
</ul>
</td>
<td width="300" valign="top">
<h3>Open nights</h3>
<table border="0" cellpadding="4" cellspacing="0" width="100%">
<tr><td><b>7 November</b></td><td>Mars and Neptune</td></tr>
<tr><td><b>8 November</b></td><td>Total eclipse of the Moon</td></tr>
<tr><td><b>5 December</b></td><td>Winter clusters</td></tr>
<tr><td><b>2 January</b></td><td>Saturn at its best</td></tr>
</table>
<table border="0" cellpadding="0" cellspacing="6">
<tr>
<td width="120" height="30" align="center" background="~_themes/orrery/orrhbna.gif"><a href="~visit.htm" style="color: #FFFFFF; text-decoration: none"><b>Find us</b></a></td>
<td width="120" height="30" align="center" background="~_themes/orrery/orrhbha.gif"><a href="~gallery/index.htm" style="color: #FFFFFF; text-decoration: none"><b>Pictures</b></a></td>
</tr>
</table>
</td>
</tr>
</table>"""

NEWS = """\
<h2>Autumn 2003</h2>
<ul>
<li><b>18 October – extra nights for Mars.</b> After the great approach of August the planet is still a fine sight.
We open on the 7th, 8th and 9th of November, from dusk.</li>
<li><b>4 October – the mirror is back.</b> Zoë and Bogusław fetched it from the coating works in Łódź:
<ul>
<li>reflectivity 94 % at 550 nm, up from 71 %</li>
<li>ζ Cancri splits cleanly at 300×, so the cell is true again</li>
</ul>
</li>
<li><b>20 September – school visit.</b> Forty young astronomers found 31 of the 32 planets we had hidden in the garden.
The last one was eaten by a jackdaw.</li>
</ul>
<!--msthemeseparator--><p align="center"><img src="~_themes/orrery/orrrulea.gif" width="560" height="16"></p>
<h2>Summer 2003</h2>
<ul>
<li><b>30 August – Mars, 55.8 million kilometres away.</b> Six hundred visitors in three nights, and not one cloud.</li>
<li><b>12 August – Perseids.</b> A full Moon, alas; we counted eleven meteors and ate a great deal of cake.</li>
</ul>"""

GALLERY = """\
<h2>From the eyepiece, and beside it</h2>
<p>Taken by members in the past two years. Choose a picture to see it alone.</p>
<table border="0" cellpadding="0" cellspacing="12" width="600">
<tr>
<td align="center"><a href="../images/saturn.jpg"><img border="0" src="../images/saturn.jpg" width="270" height="190" alt="Saturn"></a><br>
<b>Saturn</b>, through the reflector</td>
<td align="center"><a href="../images/moon.jpg"><img border="0" src="../images/moon.jpg" width="270" height="190" alt="The Moon"></a><br>
<b>The Moon</b>, on a film for greys</td>
</tr>
<tr>
<td align="center"><a href="../images/aurora.jpg"><img border="0" src="../images/aurora.jpg" width="270" height="190" alt="Northern lights"></a><br>
<b>Northern lights</b>, 29 October 2003</td>
<td align="center"><a href="../images/dome.jpg"><img border="0" src="../images/dome.jpg" width="270" height="190" alt="The dome"></a><br>
<b>The dome</b>, waiting for dark</td>
</tr>
</table>"""


def entry(sign, size, text):
    """A line of a list, where the theme does without style sheets."""
    return (f'<!--msthemelist--><tr><td valign="baseline" width="42"><img src="_themes/almanac/{sign}" width="{size}" '
            f'height="{size}" hspace="11" alt="bullet"></td><td valign="top" width="100%">'
            f'<!--mstheme--><font face="Georgia, Times New Roman">{text}<!--mstheme--></font></td></tr>\n')


def almanac_list(*entries):
    return ('<!--mstheme--></font><!--msthemelist--><table border="0" cellpadding="2" cellspacing="0" width="100%">\n'
            + "".join(entry(*line) for line in entries)
            + '<!--msthemelist--></table><!--mstheme--><font face="Georgia, Times New Roman">\n')


ALMANAC_RULE = ('<!--msthemeseparator--><p align="center"><img src="_themes/almanac/almrule.gif" width="500" '
                'height="14"></p>\n')

VISIT = (
    """\
<html>

<head>
<meta http-equiv="Content-Language" content="en-gb">
<meta http-equiv="Content-Type" content="text/html; charset=windows-1252">
<meta name="ProgId" content="FrontPage.Editor.Document">
<title>Visiting Larkfell</title>
<meta name="Microsoft Theme" content="almanac 011">
</head>

<body background="_themes/almanac/almback.gif" bgcolor="#F6ECD2" text="#4A2C14" link="#4C6A1C" vlink="#7A5A2A" alink="#C2491D"><!--mstheme--><font face="Georgia, Times New Roman">

<div align="center"><center>
<table border="0" cellpadding="0" cellspacing="0" width="700">
<tr><td align="center" height="84">
<table border="0" cellpadding="0" cellspacing="0" width="500"><tr>
<td width="500" height="64" align="center" valign="top" background="_themes/almanac/almbnr.gif"><p style="margin-top: 11px"><font face="Book Antiqua,Georgia,Times New Roman" size="5" color="#F6ECD2">Visiting Larkfell</font></td>
</tr></table>
</td></tr>
<tr><td align="center">
<table border="0" cellpadding="0" cellspacing="6"><tr>
"""
    + "".join(
        f'<td width="112" height="28" background="_themes/almanac/almhbn.gif"><p style="margin-left: 30px"><a href="{target}" style="color: #7A2A0C; text-decoration: none"><font size="2"><b>{name}</b></font></a></td>\n'
        for target, name in PAGES if target != "visit.htm")
    + """\
</tr></table><br>
</td></tr>
<tr><td><!--mstheme--><font face="Georgia, Times New Roman">
"""
    + ALMANAC_RULE
    + """\
<table border="0" cellpadding="0" cellspacing="0" width="700"><tr>
<td width="300" valign="top"><br><img border="0" src="images/map.gif" width="300" height="200" alt="Map: from the mill lane up to the dome"></td>
<td width="30">&nbsp;</td>
<td width="370" valign="top"><!--mstheme--><font face="Georgia, Times New Roman">
<h3><font face="Book Antiqua,Georgia,Times New Roman" color="#A83C14">The way up</font></h3>
"""
    + almanac_list(
        ("almsun.gif", 20, "By day follow the red path from Mill Lane: twenty minutes, and a bench half way."),
        ("almsun.gif", 20, "By night come with a red torch. White lights spoil the dark for everybody."),
        ("almstar.gif", 16, "The last bus home leaves the bridge at 22.40."),
        ("almstar.gif", 16, "The lane is closed to cars on open nights."))
    + """\
<!--mstheme--></font></td>
</tr></table>
"""
    + ALMANAC_RULE
    + """\
<h3><font face="Book Antiqua,Georgia,Times New Roman" color="#A83C14">What to bring</font></h3>
"""
    + almanac_list(
        ("almleaf.gif", 16, "Warm clothes, also in June. The dome is as cold as the night is clear."),
        ("almleaf.gif", 16, "A cup: the tea is ours, the washing-up is yours."),
        ("almleaf.gif", 16, "Patience – Saturn has waited longer than you have."))
    + """\
<p align="center">
<a href="gallery/index.htm"><img border="0" src="_themes/almanac/almprev.gif" width="32" height="32" alt="Back" hspace="5"></a>
<a href="index.htm"><img border="0" src="_themes/almanac/almhome.gif" width="32" height="32" alt="Home" hspace="5"></a>
<a href="links.htm"><img border="0" src="_themes/almanac/almnext.gif" width="32" height="32" alt="Next" hspace="5"></a></p>
<!--mstheme--></font></td></tr>
</table>
</center></div>

<!--mstheme--></font></body>

</html>
""")

LINKS = """\
<html>

<head>
<meta http-equiv="Content-Language" content="en-gb">
<meta http-equiv="Content-Type" content="text/html; charset=windows-1252">
<meta name="ProgId" content="FrontPage.Editor.Document">
<title>Links</title>
<meta name="Microsoft Theme" content="none">
</head>

<body bgcolor="#FFFFFF">

<h2>Links</h2>
<p>A plain page for slow modems. It has no theme on purpose.</p>
<ul>
<li><a href="index.htm">Larkfell Observatory</a>, our front page</li>
<li><a href="gallery/index.htm">Gallery</a>, four pictures</li>
<li><a href="visit.htm">How to find us</a></li>
</ul>
<hr>
<p><img border="0" src="images/logo.gif" width="150" height="80" alt="The dome"></p>
<p><font size="2">© 2001–2003 The Friends of Larkfell Observatory</font></p>

</body>

</html>
"""
