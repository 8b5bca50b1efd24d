"""A theme's folder, and the files that old webs keep beside their files."""

from art import sheets


def files(theme):
    """The theme's files by name, those of its _vti_cnf folder with that folder's name before theirs."""
    content = {**theme.pictures(), **sheets.of(theme)}
    content[f"{theme.NAME}.inf"] = content[f"{theme.NAME}.utf8"] = description(theme)
    notes = {f"_vti_cnf/{name}": note(data) for name, data in content.items()}
    return {**content, **notes}


def description(theme):
    """The .inf file. Order and case of its keys differ among themes, its line ends are those of the sheets."""
    titles = "".join(f"{language}={title}\n" for language, title in theme.TITLES)
    if theme.WRITING is sheets.older:
        text = (f"[Info]\nversion=01.00\nTitle={theme.LABEL}\nReadOnly={'true' if theme.READ_ONLY else 'false'}\n"
                f"codepage=1252\nformat=1\nrefcount=0\n\n[Titles]\n{titles}").replace("\n", "\r\n")
    else:
        text = (f"[info]\ntitle={theme.LABEL}\ncodepage=65001\nversion=02.00\nreadonly={int(theme.READ_ONLY)}\n"
                f"refcount=0\nformat=2\n[titles]\n{titles}")
    return text.encode("utf-8")


def note(data, title=None):
    """The text file that stands in _vti_cnf for a file of the web."""
    lines = [
        "vti_encoding:SR|utf8-nl",
        "vti_author:SR|LARKFELL\\\\warden",
        "vti_timecreated:TR|14 Apr 2001 20:10:00 -0000",
        "vti_timelastmodified:TR|09 Nov 2003 21:42:00 -0000",
        "vti_extenderversion:SR|6.0.2.5420",
        f"vti_filesize:IR|{len(data)}",
    ]
    if title:
        lines.append(f"vti_title:SR|{title}")
    return "".join(line + "\r\n" for line in lines).encode("utf-8")
