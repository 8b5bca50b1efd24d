"""The page that shows a theme at a glance: one "#key#" for each theme element, to be replaced by its picture's address."""

import re

SIZE = 8268  # bytes, with the three zeros at the end

STYLE = """\
body{margin:10px;color:#333;font:11px/1.3 "Segoe UI",Tahoma,"DejaVu Sans",Verdana,Arial,sans-serif}
table{border-collapse:separate;border-spacing:0;width:100%}
td,th{padding:0;vertical-align:middle;text-align:left;font-weight:normal}
#outer>tbody>tr>td{padding:0 0 12px}
.section{table-layout:fixed;border:1px solid #a8acb4;border-radius:4px;overflow:hidden}
.section>tbody>tr>td{padding:5px 8px;border-top:1px solid rgba(140,146,158,.45)}
h1{margin:0;padding:3px 10px 4px;font-size:18px;font-weight:normal;color:#fff;background:#4a5261}
.section .name{background:rgba(246,247,249,.94);border-right:1px solid #c4c8d0}
.grid{table-layout:fixed}
.grid td{padding:3px 6px 0 0}
.state{font-size:10px;line-height:14px}
.state b{padding:0 5px 1px;border-radius:3px;background:rgba(246,247,249,.88);font-weight:normal;color:#555}
img{max-width:100%;vertical-align:middle}
.bullets img{margin-right:14px}
@media(min-width:1080px){
#outer>tbody{display:grid;grid-template-columns:minmax(0,1fr) minmax(0,1fr);grid-template-rows:auto 1fr;column-gap:12px}
#outer>tbody>tr{display:block}
#outer>tbody>tr>td{display:block}
#outer>tbody>tr:first-child{grid-row:1/3}
}"""

HEAD = """\
<!DOCTYPE html>
<html>
<head>
<meta http-equiv="Content-Language" content="en-us">
<meta http-equiv="Content-Type" content="text/html; charset=windows-1252">
<title>Active graphics</title>
<style>
{style}
</style>
</head>
<body background="#global/background-image#">
<table id="outer">
"""


def image(key):
    return f'<img src="#{key}#">'


def row(name, content, css=""):
    cell = f' class="{css}"' if css else ""
    return f'<tr>\n<td class="name">{name}</td>\n<td{cell}>{content}</td>\n</tr>\n'


def grid(titles, rows):
    """A small table: one line of titles, then lines of cells. An empty title stands over the names of the lines."""
    head = "".join(f"<td>{'<b>' + title + '</b>' if title else ''}</td>" for title in titles)
    lines = "".join("<tr>" + "".join(f"\n<td>{cell}</td>" for cell in cells) + "\n</tr>\n" for cells in rows)
    return f'\n<table class="grid">\n<tr class="state">{head}</tr>\n{lines}</table>\n'


def states_row(name, group, button, states):
    """`states` pairs a title with the state whose picture stands under it."""
    spare = [""] * (3 - len(states))  # so that the sections' columns stand under each other
    titles = [title for title, _ in states] + spare
    return row(name, grid(titles, [[image(f"{group}/navbutton-{button}-{state}") for _, state in states] + spare]))


def quick_links(group, states):
    lines = [
        [f'<span class="state"><b>{state.capitalize()}</b></span>']
        + [image(f"{group}/navbutton-{link}-{state}") for link in ("prev", "home", "next", "up")]
        for state in states
    ]
    return row("Quick links", grid(["", "Back", "Home", "Next", "Up"], lines))


def section(title, rows):
    return (
        f'<tr>\n<td>\n<table class="section">\n<col width="92"><col>\n<tr>\n<th colspan="2"><h1>{title}</h1></th>\n</tr>\n'
        f'{"".join(rows)}</table>\n</td>\n</tr>\n'
    )


def graphics(group, title, vertical, horizontal, links):
    bullets = "".join("\n" + image(f"{group}/list-image-{level}") for level in (1, 2, 3)) + "\n"
    return section(title, [
        row("Banner", image(f"{group}/nav-banner-image")),
        states_row("Vertical Nav. Bar", group, "vert", vertical),
        states_row("Horizontal Nav. Bar", group, "horiz", horizontal),
        row("Bullets", bullets, "bullets"),
        row("Separator", image(f"{group}/separator-image")),
        quick_links(group, links),
    ])


def template():
    normal, hovered, pushed = ("Normal", "normal"), ("Hovered", "hovered"), ("Pushed", "pushed")
    # The hovered and pushed pictures of the active horizontal bar stand under each other's title. Users know it so.
    crossed = (normal, ("Hovered", "pushed"), ("Pushed", "hovered"))
    page = HEAD.format(style=STYLE)
    page += graphics("active", "Active graphics", (normal, hovered, pushed), crossed, ("normal", "hovered", "pushed"))
    page += graphics("normal", "Normal\n graphics", (normal, pushed), (normal, pushed), ("normal",))
    page += section("Global\n graphics", [row("Global Nav. Bar", image("global/top-bar-button"))])
    page += "</table>\n</body>\n</html>\n"
    return padded(indented(page).replace("\n", "\r\n").encode("cp1252"))


def indented(page):
    """Two blanks before a line for every table part that is open there."""
    lines, depth = [], 0
    for line in page.splitlines():
        opened = len(re.findall(r"<(?:table|tr|td|th)\b", line))
        closed = len(re.findall(r"</(?:table|tr|td|th)>", line))
        lines.append("  " * (depth - (closed > opened)) + line)
        depth += opened - closed
    return "\n".join(lines) + "\n"


def padded(page):
    """The page, brought to its size with blank lines, and the zeros."""
    missing = SIZE - 3 - len(page)
    if missing < 0:
        raise ValueError(f"the template is {-missing} bytes too long")
    lines, rest = divmod(missing, 80)
    return page + (b" " * 78 + b"\r\n") * lines + b" " * rest + bytes(3)
