"""Style sheets as theme folders hold them. Rules are (selector, [(property, value)]), colours "#rrggbb"."""

import re


def older(rules):
    """The older writing: in a style tag with a stray full stop behind it, colours as rgb(), CR LF."""
    def value(text):
        return re.sub(r"#(..)(..)(..)\b", lambda m: "rgb(%d,%d,%d)" % tuple(int(part, 16) for part in m.groups()), text)

    lines = ["<style>"]
    for selector, properties in rules:
        lines += [selector, "{", *(f"\t{name}: {value(text)};" for name, text in properties), "}"]
    return "\r\n".join(lines + ["</style>."]).encode("cp1252")


def newer(rules):
    """The newer writing: no blanks around values, colours #RRGGBB, LF."""
    def value(text):
        return re.sub(r"#[0-9a-f]{6}\b", lambda m: m.group().upper(), text)

    parts = [selector + "{\n" + "".join(f"{name}:{value(text)};\n" for name, text in properties) + "}\n"
             for selector, properties in rules]
    return "".join(parts).encode("cp1252")


def merged(*sheets):
    """One sheet that says the same: each selector once, later values in place of earlier ones."""
    rules = {}
    for selector, properties in (rule for sheet in sheets for rule in sheet):
        rules.setdefault(selector, {}).update(properties)
    return [(selector, list(properties.items())) for selector, properties in rules.items()]


def general(theme):
    """theme.css"""
    fonts = [(f"h{level}", [("font-family", theme.HEADING_FONT), ("font-size", size), ("font-weight", "normal")])
             for level, size in ((1, "24pt"), (2, "16pt"), (3, "13pt"), (4, "11pt"))]
    return [
        ("body", [("font-family", theme.TEXT_FONT), ("font-size", "10pt"), ("background-image", theme.BACKGROUND_VALUE),
                  ("background-repeat", "repeat")]),
        (".mstheme", [("top-bar-button", f"url({theme.TOP_BAR})"), ("separator-position", "center"),
                      ("nav-banner-font-family", theme.HEADING_FONT), ("nav-banner-font-size", "5")]),
        ("td", [("font-family", theme.TEXT_FONT), ("font-size", "10pt")]),
        *fonts,
        ("ul", [("list-style-image", "url('')")]),
        (".mstheme-topbar-font", [("font-family", theme.TEXT_FONT), ("background-image", "url('')")]),
    ]


def graphics(theme, active):
    """graph1.css, or graph0.css"""
    files = theme.graphics(active)
    bullets = {name: file for name, file in files if name.startswith("list-image")}
    lists = [(selector, [("list-style-image", f"url('{bullets[f'list-image-{level}']}')")])
             for selector, level in (("ul", 1), ("ul ul", 2), ("ul ul ul", 3))]
    return lists + [(".mstheme", [(name, f"url({file})") for name, file in files])]


def colors(theme, vivid):
    """color1.css, or color0.css"""
    tones = theme.VIVID if vivid else theme.MUTED
    return [
        (".mstheme", [("navbutton-background-color", tones["panel"]), ("top-bar-button-color", tones["text"])]),
        ("a:link", [("color", tones["link"])]),
        ("a:visited", [("color", tones["visited"])]),
        ("a:active", [("color", tones["active"])]),
        ("body", [("color", tones["text"]), ("background-color", tones["page"])]),
        *((f"h{level}", [("color", tones["heading"])]) for level in (1, 2, 3, 4)),
        ("table", [("table-border-color-light", tones["edge"]), ("table-border-color-dark", tones["panel"])]),
        ("th", [("color", tones["heading"])]),
    ]


def of(theme):
    """The theme's sheets by file name; the merged ones stand for vivid colours with active graphics."""
    parts = {
        "theme.css": general(theme),
        "graph0.css": graphics(theme, False),
        "graph1.css": graphics(theme, True),
        "color0.css": colors(theme, False),
        "color1.css": colors(theme, True),
    }
    together = merged(parts["theme.css"], parts["graph1.css"], parts["color1.css"])
    sheets = {**parts, **{name: together for name in theme.MERGED_SHEETS}}
    return {name: theme.WRITING(rules) for name, rules in sheets.items()}
