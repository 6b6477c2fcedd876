"""Writes the icons of the library: resources/icons, the table of mirrored icons, and the license of the icon set.

usage: import_icons.py REPOSITORY NODE_MODULES

Every icon is put in one group with an invisible square of its full size, for two reasons. Drawing code fits the bounds
of the root's only child into a rectangle; with the square an icon keeps the margins that it was designed with, and a
minus does not fill its button. And because the root has only one child, the icon is tinted.

A drawing in the folder own beside this file is an icon, too, and stands in for one of the package with the same name.

Whatever is not as expected ends the import before the first file is touched.
"""
import re
import sys
import xml.etree.ElementTree as ET
from pathlib import Path

from common import Fault, require_license, write_outcome

PACKAGE = "@fluentui/svg-icons"
SIZES = (12, 16, 20, 24)
STYLES = {"": "regular", "-filled": "filled"}  # what our name ends with, what the package calls it
# The package says that its license is MIT but does not bring the text.
SET_NAME = "Fluent UI System Icons"
COPYRIGHT = "Copyright (c) 2020 Microsoft Corporation"

SVG = "{http://www.w3.org/2000/svg}"


def read_table(path):
    """The rows of icons.tsv as (name, source, first size, mirrored)."""
    lines = [line for line in path.read_text(encoding="utf-8").splitlines() if line and not line.startswith("#")]
    if lines[:1] != ["name\tsource\tfrom\tmirrored"]:
        raise Fault(f"{path}: the first line is not the names of the columns")
    rows = []
    for line in lines[1:]:
        match = re.fullmatch(r"([a-z]+(?:-[a-z]+)*)\t([a-z0-9]+(?:_[a-z0-9]+)*)\t(12|16|20|24)\t(yes|no)", line)
        if not match:
            raise Fault(f"{path}: not a row: {line}")
        name, source, first, mirrored = match.groups()
        if name.endswith("-filled"):
            raise Fault(f"{path}: {name}: the filled icon comes with the plain one")
        rows.append((name, source, int(first), mirrored == "yes"))
    names = [row[0] for row in rows]
    for name in sorted(set(names)):
        if names.count(name) > 1:
            raise Fault(f"{path}: {name} has two rows")
    return rows


def path_data(element, allowed):
    if element.tag != SVG + "path" or len(element) or set(element.attrib) - allowed:
        raise Fault("has something else than plain paths")
    data = element.get("d", "")
    # What numbers and commands of paths consist of: nothing in here can end the attribute.
    if not re.fullmatch(r"[Mm][-MmLlHhVvCcSsQqTtAaZz0-9., ]+", data):
        raise Fault("has a path that is not one")
    return data


def read_drawing(path, size):
    """The data of the paths of an icon that has no color of its own and is size by size units big."""
    try:
        root = ET.parse(path).getroot()
    except (OSError, ET.ParseError) as error:
        raise Fault(str(error)) from error
    expected = {"width": str(size), "height": str(size), "viewBox": f"0 0 {size} {size}"}
    if root.tag != SVG + "svg" or root.attrib != expected:
        raise Fault(f"is not a drawing of {size} by {size}")
    shapes = list(root)
    # Some drawings are clipped to their own square. That changes nothing, and Qt knows no clip paths.
    if len(shapes) == 2 and shapes[0].tag == SVG + "g" and shapes[1].tag == SVG + "defs":
        group, definitions = shapes
        clip = definitions[0] if len(definitions) == 1 else None
        if clip is None or clip.tag != SVG + "clipPath" or set(clip.attrib) != {"id"} or len(clip) != 1:
            raise Fault("has definitions")
        if path_data(clip[0], {"d", "fill"}) != f"M0 0h{size}v{size}H0z":
            raise Fault("is clipped to something else than its square")
        if group.attrib != {"clip-path": f"url(#{clip.get('id')})"}:
            raise Fault("has a group with attributes")
        shapes = list(group)
    if not shapes:
        raise Fault("is empty")
    return [path_data(shape, {"d"}) for shape in shapes]


def icon_text(paths, size):
    drawn = "".join(f'<path d="{data}"/>' for data in paths)
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{size}" height="{size}" viewBox="0 0 {size} {size}">'
            f'<g><path fill="none" d="M0 0h{size}v{size}H0z"/>{drawn}</g></svg>\n')


def read_icons(rows, package, own):
    """The texts of all icons by their names. The faults of all files are reported together."""
    wanted = {}
    for name, source, first, _ in rows:
        for size in SIZES[SIZES.index(first):]:
            for ending, style in STYLES.items():
                wanted[f"{name}{ending}_{size}"] = (package / "icons" / f"{source}_{size}_{style}.svg", size)
    for path in own.glob("*.svg"):
        match = re.fullmatch(r"[a-z]+(?:-[a-z]+)*_([0-9]+)(?:_[a-z]+)?", path.stem)
        if not match:
            raise Fault(f"{path}: not the name of an icon")
        wanted[path.stem] = (path, int(match[1]))
    icons, faults = {}, []
    for name, (path, size) in sorted(wanted.items()):
        try:
            icons[name] = icon_text(read_drawing(path, size), size)
        except Fault as fault:
            faults.append(f"{name}: {path}: {fault}")
    if faults:
        raise Fault("\n".join(faults))
    return icons


def qrc_text(icons):
    files = "".join(f"    <file>{name}.svg</file>\n" for name in icons)
    return f'<RCC>\n<qresource prefix="/Resources">\n{files}</qresource>\n</RCC>\n'


def header_text(rows):
    names = "".join(f'    QLatin1String("{name}", {len(name)}),\n' for name, _, _, mirrored in sorted(rows) if mirrored)
    return f"""\
// Written by scripts/import-assets from scripts/assets/icons.tsv, where the reasons are. Change it there.
#pragma once

#include <QLatin1String>

/// The icons that are drawn mirrored where the text runs from right to left, sorted. A name stands for the plain and
/// the filled icon in every size: "reply" for ":/Resources/reply_16.svg" and ":/Resources/reply-filled_24.svg".
// clang-format off
inline constexpr QLatin1String mirroredIcons[] = {{
{names}}};
// clang-format on
"""


def license_text(package, own_license):
    require_license(package, "MIT")
    title, ours, terms = own_license.read_text(encoding="utf-8").split("\n\n", 2)
    if title != "MIT License" or not ours.startswith("Copyright (c) "):
        raise Fault(f"{own_license}: not the text of the MIT license")
    return f"{SET_NAME} (resources/icons)\n\n{title}\n\n{COPYRIGHT}\n\n{terms}"


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    root, package = Path(sys.argv[1]), Path(sys.argv[2]) / PACKAGE
    assets, folder = root / "scripts/assets", root / "resources/icons"
    try:
        rows = read_table(assets / "icons.tsv")
        icons = read_icons(rows, package, assets / "own")
        texts = {folder / f"{name}.svg": text for name, text in icons.items()}
        texts[folder / "icons.qrc"] = qrc_text(icons)
        texts[root / "UiElements/icons/MirroredIcons_p.h"] = header_text(rows)
        texts[root / "LICENSES/MIT-Fluent-UI-System-Icons.txt"] = license_text(package, root / "LICENSES/MIT.txt")
    except (Fault, OSError) as fault:
        sys.exit(f"Nothing is imported:\n{fault}")

    write_outcome(texts, (folder, "*.svg"))
    print(f"       {len(icons)} icons, {sum(map(len, icons.values()))} bytes")


if __name__ == "__main__":
    main()
