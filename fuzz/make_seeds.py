#!/usr/bin/env python3
"""Writes the seeds in fuzz/seeds/ and the dictionaries in fuzz/dictionaries/: small inputs of every kind that the
targets are about. What a fuzzer has found stands beside them under names that begin with "found-", and stays."""
import io
import pathlib

from PIL import Image

HERE = pathlib.Path(__file__).parent
SAMPLE = HERE.parent / "samples" / "larkfell"


def save(target, name, data):
    folder = HERE / "seeds" / target
    folder.mkdir(parents=True, exist_ok=True)
    (folder / name).write_bytes(data.encode() if isinstance(data, str) else data)


def picture(mode, size):
    width, height = size
    image = Image.new("RGB", size)
    image.putdata([(x * 37 % 256, y * 61 % 256, x * y % 256) for y in range(height) for x in range(width)])
    return image.convert(mode)


def encoded(image, **options):
    stream = io.BytesIO()
    image.save(stream, **options)
    return stream.getvalue()


def gifs():
    image = picture("P", (9, 7))
    save("gif", "plain.gif", encoded(image, format="GIF"))
    save("gif", "interlaced.gif", encoded(image, format="GIF", interlace=1, transparency=3, comment=b"a comment"))
    frames = [picture("RGB", (9, 7)).quantize(4), picture("RGB", (9, 7)).rotate(180).quantize(8)]
    save("gif", "animation.gif", encoded(frames[0], format="GIF", save_all=True, append_images=frames[1:], loop=0))


def jpegs():
    image = picture("RGB", (33, 18))
    for name, options in {
        "444": {"subsampling": 0},
        "420": {"subsampling": 2},
        "progressive": {"progressive": True},
        "restarts": {"restart_marker_blocks": 2},
    }.items():
        save("jpeg", name + ".jpg", encoded(image, format="JPEG", quality=70, **options))
    save("jpeg", "grey.jpg", encoded(picture("L", (17, 9)), format="JPEG"))
    save("jpeg", "rgb.jpg", encoded(image, format="JPEG", keep_rgb=True))
    save("jpeg", "cmyk.jpg", encoded(picture("CMYK", (9, 9)), format="JPEG"))


def texts():
    theme = SAMPLE / "_themes" / "orrery"
    for sheet in ("theme.css", "graph0.css", "color0.css"):
        save("css", sheet, (theme / sheet).read_bytes()[:1500])
    save("css", "odd.css", "@media x { a { b: c } } <!-- .mstheme { top-bar: url(a.gif); x: 'un\nclosed; y: \"\\26 z\" } -->"
         " a[b='}'] { c: d(e{f}g) !important } /* never closed")
    save("profile", "orrery.inf", (theme / "orrery.inf").read_bytes())
    save("profile", "odd.inf", "\xef\xbb\xbf; comment\r\nstray=1\r\n[INFO]\r\n Title = \"a\" \r\ntitle=b\n[info\n[titles]\r1033=c")
    save("registry", "values.reg", 'Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\Software\\A]\r\n"b"="c\\\\d"\r\n'
         '@="e"\r\n"f"=dword:0000002a\r\n"g"=hex:01,02,\\\r\n  03\r\n"h"=-\r\n\r\n[-HKEY_CURRENT_USER\\Software\\I]\r\n')
    save("registry", "utf16.reg", ('\ufeffWindows Registry Editor Version 5.00\r\n[HKEY_CURRENT_USER\\X]\r\n"y"="\xfc"\r\n').encode("utf-16-le"))
    save("package", "two.elm", "theme\n2\na.gif,5\nb.css,3\n<==MS-Theme==>12345<==MS-Theme==>abc")
    sheet = ".mstheme { a: url(../../_themes/b/b.gif); b: url(a.gif) }"
    save("package", "sheet.elm", f"theme\n2\na.gif,5\nnight.css,{len(sheet)}\n<==MS-Theme==>12345<==MS-Theme==>{sheet}")
    save("package", "outside.elm", "theme\n1\n..\\..\\a.gif,1\n<==MS-Theme==>1")
    save("page", "index.htm", (SAMPLE / "index.htm").read_bytes()[:3000])
    page = ('<html><head><meta content="old 1011, default" name="Microsoft Theme"><!--mstheme--><link href="_themes/old/o.css">'
            '</head><body background="../_themes/old/x.gif">\xfc<script>a="_themes/old/y.gif"</script></body></html>')
    save("page", "latin.htm", page.encode("latin-1"))
    save("page", "utf16.htm", ("\ufeff" + page).encode("utf-16-le"))
    files = {
        "_themes/a/a.inf": b"[info]\ntitle=A\n",
        "_themes/a/theme.css": b".mstheme { top-bar: url(a.gif) }",
        "_themes/a/a.gif": b"GIF89a",
        "_themes/b/b.inf": b"[info]\ntitle=B\nreadonly=true\n",
        "sub/page.htm": b'<meta name="Microsoft Theme" content="b 1011"><img src="../_themes/b/a.gif">',
        "_vti_pvt/x": b"",
    }
    web = b"".join(f"{name}\n{len(data)}\n".encode() + data for name, data in files.items())
    save("web", "two-themes", web)
    save("web", "links", web + b"_themes/beside\nlink\nout\nlink\nindex.htm\n40\n<img src=out/x.gif><img src=../beside/x>")
    for number, line in enumerate([
        "list web --theme orrery --json",
        "recolor web --theme orrery --select none --select active --hue 40 --apply --undo --redo --export out",
        "recolor web --theme orrery --hue 60 --apply --save-as night --title T --apply-to-web --dry-run",
        "recolor a.jpg b.gif --saturation 40 --quality 85 --output-dir grey",
        "apply web --theme dusk --in-place-of orrery",
        "image web --page index.htm --select 2",
        "--version",
        "recolor web --theme orrery --brightness 80 --apply --save",
        "recolor web --theme orrery --saturation 30 --apply --save-as night --apply-to-web --apply-to-pages",
        "recolor a.jpg b.gif --hue 90 --in-place",
        "recolor web --theme dusk --hue 90 --apply --save-as ..\\..\\beside",
    ]):
        save("command", f"line{number}", line.replace(" ", "\n"))


DICTIONARIES = {
    "gif": ["GIF87a", "GIF89a", "\\x21\\xf9\\x04", "\\x21\\xff\\x0bNETSCAPE2.0", "\\x2c", "\\x3b"],
    "jpeg": ["\\xff\\x%02x" % marker for marker in (0xC0, 0xC2, 0xC4, 0xD0, 0xD8, 0xD9, 0xDA, 0xDB, 0xDD, 0xE0, 0xEE, 0xFE)],
    "css": [".mstheme", "url(", "@media", "<!--", "-->", "/*", "*/", "\\\\26 ", "rgb(", "!important"],
    "profile": ["[info]", "[titles]", "title=", "readonly=", "codepage=65001", "\\xef\\xbb\\xbf", "\\x0d\\x0a"],
    "registry": ["Windows Registry Editor Version 5.00", "[HKEY_CURRENT_USER\\\\", "dword:", "hex(2):", "hex:", "@=", "=-", "[-"],
    "package": ["<==MS-Theme==>", ".gif,", "..\\\\", "../", "nul", "32767"],
    "page": ["<meta name=", "Microsoft Theme", " 1011, default", "_themes/", "<!--mstheme-->", "href=", "%20", "&amp;", "url("],
    "web": ["_themes/", ".inf", "[info]", "theme.css", "index.htm", "Microsoft Theme", "_vti_pvt/", "\\x0alink\\x0a"],
    "command": ["list", "recolor", "apply", "image", "theme", "--theme", "--hue", "--apply", "--export", "--save-as", "--save", "--in-place",
                "--apply-to-web", "--dry-run", "--json", "--help"],
}

gifs()
jpegs()
texts()
for target, words in DICTIONARIES.items():
    quote = '"'
    lines = [quote + word.replace(quote, "\\" + quote) + quote for word in words]
    (HERE / "dictionaries" / f"{target}.txt").write_text("\n".join(lines) + "\n")
