"""Writes the emoji of the library: resources/emoji and the licenses of what it is made from.

usage: import_emoji.py REPOSITORY NODE_MODULES

emoji.json is the catalogue. "k" and "sheet_x", "sheet_y" are the cell in the sprite sheets of emoji-datasource.

svg holds the drawings as they are published, except that one which is not square gets margins. emojis.qrc gives them
the names by which they are found: the code points of an emoji as they stand in a text. Texts hold an emoji with and
without variation selectors, so a drawing has several names.

translations hold the names of the emoji and a part of their keywords. Names are translated one by one, and no two
English names are the same. A keyword is one text for all its emoji, while the lists of keywords of two languages do
not correspond word by word; its translation is the foreign keyword that stands at the same emoji or nearly so, where
there is a clear one. So it may be a related word instead of the literal one, but a search by it finds the right emoji.
A keyword that is the name of an emoji is translated as that name. The others stay English.

Whatever is not as expected ends the import before the first file is touched.
"""
import json
import re
import sys
import unicodedata
import xml.etree.ElementTree as ET
from collections import Counter, defaultdict
from difflib import SequenceMatcher
from pathlib import Path
from xml.sax.saxutils import escape

from common import Fault, read_json, require_license, write_outcome

LANGUAGES = ("ar", "de", "es", "fr", "he", "it", "ja", "pt", "ru")
TONES = ("1F3FB", "1F3FC", "1F3FD", "1F3FE", "1F3FF")
# Id, name, and the categories of emoji-datasource in it. "Component", the bare skin tones, is nothing to choose from.
CATEGORIES = (
    ("people", "Smileys & People", ("Smileys & Emotion", "People & Body")),
    ("nature", "Animals & Nature", ("Animals & Nature",)),
    ("foods", "Food & Drink", ("Food & Drink",)),
    ("activity", "Activities", ("Activities",)),
    ("places", "Travel & Places", ("Travel & Places",)),
    ("objects", "Objects", ("Objects",)),
    ("symbols", "Symbols", ("Symbols",)),
    ("flags", "Flags", ("Flags",)),
)
# The names that the library offers before anything was used.
RECENTS = ("+1", "grinning", "kissing_heart", "heart_eyes", "laughing", "stuck_out_tongue", "sweat_smile", "joy",
           "scream", "blush", "sunglasses", "wink", "heartpulse", "sob")

CONTEXT = "EmojiLocalisation"
EMOJI_STYLE, TEXT_STYLE, JOINER = "FE0F", "FE0E", "200D"
# Which kind of person it is; apart from that the emoji of a profession or an activity are the same.
PERSONS = {"1F466", "1F467", "1F468", "1F469", "1F474", "1F475", "1F476", "1F9D1", "1F9D2", "1F9D3", "2640", "2642"}

SVG = "{http://www.w3.org/2000/svg}"
SHAPES = {"circle", "clipPath", "defs", "ellipse", "g", "path"}
ATTRIBUTES = {"clip-path", "clip-rule", "clipPathUnits", "cx", "cy", "d", "fill", "fill-opacity", "fill-rule", "id",
              "opacity", "r", "rx", "ry", "stroke", "stroke-linecap", "stroke-miterlimit", "transform",
              "{http://www.w3.org/XML/1998/namespace}space"}


def parts(code):
    """The code points of "1F44D-1F3FB" as texts."""
    found = code.upper().split("-")
    if not all(re.fullmatch("[0-9A-F]{4,6}", part) for part in found):
        raise Fault(f"{code}: not code points")
    return tuple(found)


def bare(code):
    """The code points without what asks for the look in color: by these the packages are matched."""
    return tuple(part for part in parts(code) if part != EMOJI_STYLE)


def characters(code):
    return "".join(chr(int(part, 16)) for part in code)


def image_name(code):
    """The name under which a drawing is looked up. What has fewer than four digits is padded to four already."""
    return "-".join(code).lower() + ".svg"


# ---- catalogue


def emoticons(entry, label):
    """The faces that people type, such as ":-)"."""
    others = label.get("emoticon", [])
    return [*(entry["texts"] or []), *([others] if isinstance(others, str) else others)]


def keywords(entry, label):
    """Other short names, words and emoticons, without what the emoji is called anyway."""
    words = dict.fromkeys([*entry["short_names"], *label["tags"], *emoticons(entry, label)])
    return [word for word in words if word not in (entry["short_name"], label["label"])]


def catalogue_entry(entry, label):
    result = {
        "a": label["label"],
        "b": entry["unified"],
        "j": keywords(entry, label),
        "k": [entry["sheet_x"], entry["sheet_y"]],
    }
    # Forms of couples with two different tones are no choice of the picker. They have images all the same.
    variations = entry.get("skin_variations", {})
    tones = {tone: {key: variations[tone][key] for key in ("unified", "sheet_x", "sheet_y")}
             for tone in TONES if tone in variations}
    if tones:
        result["skin_variations"] = tones
    return result


def catalogue(entries, labels):
    emojis = {}
    for entry in entries:
        name = entry["short_name"]
        if name in emojis or bare(entry["unified"]) not in labels:
            raise Fault(f"{name}: used twice, or without an English name")
        emojis[name] = catalogue_entry(entry, labels[bare(entry["unified"])])
    lacking = [name for name in RECENTS if name not in emojis]
    if lacking:
        raise Fault(f"No emoji of these names: {' '.join(lacking)}")
    # One translation for each text is only enough because of this.
    for label, count in Counter(emoji["a"] for emoji in emojis.values()).items():
        if count > 1:
            raise Fault(f"{label}: the English name of {count} emoji")

    sources = {source for _, _, taken in CATEGORIES for source in taken}
    unknown = {entry["category"] for entry in entries} - sources - {"Component"}
    if unknown:
        raise Fault(f"Categories that belong nowhere: {unknown}")
    categories = []
    for identifier, title, taken in CATEGORIES:
        names = [entry["short_name"] for source in taken for entry in entries if entry["category"] == source]
        categories.append({
            "id": identifier,
            "name": title,
            "has_skin_variantions": any("skin_variations" in emojis[name] for name in names),  # spelled like this
            "emojis": names,
        })
    return emojis, categories


def catalogue_text(emojis, categories):
    """JSON with a line for each emoji: small, and still to be compared by eye."""
    def lines(values):
        return ",\n".join(values)

    def compact(value):
        return json.dumps(value, ensure_ascii=False, separators=(",", ":"))

    return ('{"emojis":{\n' + lines(f"{compact(name)}:{compact(emojis[name])}" for name in sorted(emojis))
            + '},\n"categories":[\n' + lines(compact(category) for category in categories) + "]}\n")


# ---- images


def written_forms(entries, hexcodes):
    """Every sequence of code points that a text may hold for an emoji, other than those that ask for plain text."""
    forms = {parts(entry["unified"]) for entry in entries}
    forms |= {parts(form["unified"]) for entry in entries for form in entry.get("skin_variations", {}).values()}
    forms |= {parts(code) for variants in hexcodes.values() for code in variants}
    forms |= {tuple(part for part in form if part != EMOJI_STYLE) for form in forms}
    return {form for form in forms if TEXT_STYLE not in form}


def drawing(path):
    """The text of a drawing, which is square and refers to nothing outside."""
    text = path.read_text(encoding="utf-8")
    try:
        root = ET.fromstring(text)
    except ET.ParseError as error:
        raise Fault(f"{path}: {error}") from error
    box = re.fullmatch(r"0 0 (\d+(?:\.\d+)?) (\d+(?:\.\d+)?)", root.get("viewBox", ""))
    if root.tag != SVG + "svg" or len(root) == 0 or box is None or max(map(float, box.groups())) != 36:
        raise Fault(f"{path}: not a drawing in a square of 36")
    for element in root.iter():
        if element is root:
            continue
        if element.tag.removeprefix(SVG) not in SHAPES or not ATTRIBUTES.issuperset(element.attrib):
            raise Fault(f"{path}: {element.tag}: unexpected, or with unexpected attributes: {set(element.attrib)}")
    width, height = map(float, box.groups())
    if width != height:
        # It would be stretched into the square that all emoji are drawn in.
        square = f'viewBox="{(width - 36) / 2:g} {(height - 36) / 2:g} 36 36"'
        if text.count(f'viewBox="{box[0]}"') != 1:
            raise Fault(f"{path}: the viewBox is not written as expected")
        text = text.replace(f'viewBox="{box[0]}"', square)
    return text


def images(folder, forms, required):
    """The names of images with the files that they stand for, and the texts of those files."""
    drawn = {}
    for path in sorted(folder.glob("*.svg")):
        # Unlike everywhere else two digits stay two digits here.
        drawn[bare("-".join(part.zfill(4) for part in path.stem.split("-")))] = path
    lacking = [image_name(form) for form in sorted(required) if bare("-".join(form)) not in drawn]
    if lacking:
        raise Fault(f"Emoji without a drawing: {' '.join(lacking)}")
    names, texts = {}, {}
    for form in sorted(forms):
        path = drawn.get(bare("-".join(form)))
        if path is not None:  # the list of forms may be newer than the drawings
            names[image_name(form)] = path.name
            texts[path.name] = drawing(path)
    return names, texts


def qrc_text(names):
    files = "".join(f'    <file alias="{name}">svg/{path}</file>\n' for name, path in sorted(names.items()))
    # Unpacking the catalogue takes as long as parsing it. Nothing saves 100 %, so it is stored as it is.
    return ('<RCC>\n<qresource prefix="/emoji-data">\n    <file threshold="100">emoji.json</file>\n</qresource>\n'
            f'<qresource prefix="/emojis">\n{files}</qresource>\n</RCC>\n')


# ---- translations


def annotations(node_modules, language):
    """By the characters of an emoji its name and its keywords."""
    result = {}
    for package, key in (("cldr-annotations-full", "annotations"),
                         ("cldr-annotations-derived-full", "annotationsDerived")):
        result.update(read_json(node_modules / package / key / language / "annotations.json")[key]["annotations"])
    return {text: (entry["tts"][0], entry.get("default", [])) for text, entry in result.items() if "tts" in entry}


def folded(text):
    """For comparison across languages: no capitals, no accents."""
    return "".join(char for char in unicodedata.normalize("NFKD", text.casefold()) if not unicodedata.combining(char))


def akin(word, other):
    return min(len(word), len(other)) >= 4 and SequenceMatcher(None, folded(word), folded(other)).ratio() >= 0.7


def theme(code):
    """What an emoji shows, whoever does it. Woman and man would otherwise count as two witnesses for a translation."""
    shown = tuple(part for part in bare(code) if part not in PERSONS and part != JOINER)
    return shown or bare(code)


def match_keywords(english, foreign):
    """English keywords with their translations; both arguments are keywords with the themes that they stand at.

    Pairs are made from the surest down, each word is used once, and of two pairs that are equally sure none is made.
    """
    at = defaultdict(list)
    for other, themes in foreign.items():
        for shown in themes:
            at[shown].append(other)
    pairs = defaultdict(list)
    for word, themes in english.items():
        for other, common in Counter(other for shown in themes for other in at[shown]).items():
            likeness = 2 * common / (len(themes) + len(foreign[other]))
            if likeness < 0.5:
                continue
            related = akin(word, other)
            # Words that are not even akin need witnesses.
            if related or (common >= 3 and likeness >= 0.6) or (common == 2 and likeness > 0.9):
                pairs[likeness + 0.3 * related, common].append((word, other))
    result, used = {}, set()
    for sureness in sorted(pairs, reverse=True):
        left = [(word, other) for word, other in pairs[sureness] if word not in result and other not in used]
        words, others = Counter(word for word, _ in left), Counter(other for _, other in left)
        for word, other in left:
            if words[word] == 1 and others[other] == 1:
                result[word] = other
                used.add(other)
    return result


def keywords_by_theme(entries, words_of):
    result = defaultdict(set)
    for entry in entries:
        for word in words_of(entry):
            result[word].add(theme(entry["unified"]))
    return result


def translations(entries, labels, emojis, node_modules, english, language):
    """English names and keywords of the catalogue with what they are in a language."""
    foreign = annotations(node_modules, language)

    def notes(source, entry):
        try:
            return source[characters(bare(entry["unified"]))]
        except KeyError as error:
            raise Fault(f"{language}: {entry['short_name']} has no name") from error

    matched = match_keywords(
        keywords_by_theme(entries, lambda entry: emojis[entry["short_name"]]["j"] + notes(english, entry)[1]),
        keywords_by_theme(entries, lambda entry: notes(foreign, entry)[1]))
    # Emoticons are the same everywhere.
    faces = {face for entry in entries for face in emoticons(entry, labels[bare(entry["unified"])])}
    wanted = {word for emoji in emojis.values() for word in emoji["j"]} - faces
    result = {word: other for word, other in matched.items() if word in wanted}
    result.update((emojis[entry["short_name"]]["a"], notes(foreign, entry)[0]) for entry in entries)
    return result


def ts_text(language, texts):
    messages = "".join(f"<message><source>{escape(source)}</source><translation>{escape(text)}</translation></message>\n"
                       for source, text in sorted(texts.items()))
    return (f'<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n<TS version="2.1" language="{language}" '
            f'sourcelanguage="en">\n<context><name>{CONTEXT}</name>\n{messages}</context>\n</TS>\n')


# ---- all of it


def license_texts(root, node_modules):
    texts = {}
    for package, stated, file, title in (
            ("emoji-datasource", "MIT", "MIT-emoji-datasource.txt", "emoji-datasource (resources/emoji/emoji.json)"),
            ("emojibase-data", "MIT", "MIT-emojibase-data.txt", "emojibase-data (resources/emoji/emoji.json)"),
            ("cldr-annotations-full", "Unicode-3.0", "Unicode-3.0-CLDR.txt",
             "Unicode CLDR annotations (resources/emoji/emoji.json, resources/emoji/translations)")):
        require_license(node_modules / package, stated)
        text = (node_modules / package / "LICENSE").read_text(encoding="utf-8").strip()
        texts[root / "LICENSES" / file] = f"{title}\n\n{text}\n"
    require_license(node_modules / "cldr-annotations-derived-full", "Unicode-3.0")
    # Twemoji does not bring the text of the license of its drawings.
    require_license(node_modules / "@discordapp/twemoji", "MIT AND CC-BY-4.0")
    if not (root / "LICENSES/CC-BY-4.0-Twemoji.txt").exists():
        raise Fault("LICENSES/CC-BY-4.0-Twemoji.txt is missing")
    return texts


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    root, node_modules = Path(sys.argv[1]), Path(sys.argv[2])
    folder = root / "resources/emoji"
    try:
        entries = read_json(node_modules / "emoji-datasource/emoji.json")
        entries.sort(key=lambda entry: entry["sort_order"])
        labels = {bare(label["hexcode"]): label for label in read_json(node_modules / "emojibase-data/en/data.json")}
        emojis, categories = catalogue(entries, labels)

        required = {parts(emoji["b"]) for emoji in emojis.values()}
        required |= {parts(form["unified"]) for emoji in emojis.values()
                     for form in emoji.get("skin_variations", {}).values()}
        forms = written_forms(entries, read_json(node_modules / "emojibase-data/meta/hexcodes.json"))
        names, drawings = images(node_modules / "@discordapp/twemoji/dist/svg", forms, required)

        texts = {folder / "svg" / name: text for name, text in drawings.items()}
        texts[folder / "emojis.qrc"] = qrc_text(names)
        texts[folder / "emoji.json"] = catalogue_text(emojis, categories)
        english = annotations(node_modules, "en")
        for language in LANGUAGES:
            translated = translations(entries, labels, emojis, node_modules, english, language)
            texts[folder / f"translations/emoji_{language}.ts"] = ts_text(language, translated)
            print(f"       {language}: {len(translated) - len(emojis)} keywords besides the names")
        texts.update(license_texts(root, node_modules))
    except (Fault, OSError) as fault:
        sys.exit(f"Nothing is imported:\n{fault}")

    write_outcome(texts, (folder / "svg", "*.svg"), (folder / "translations", "*.ts"))
    toned = sum(len(emoji.get("skin_variations", {})) for emoji in emojis.values())
    print(f"       {len(emojis)} emoji, {toned} toned forms; {len(drawings)} drawings, {len(names)} names of images")


if __name__ == "__main__":
    main()
