"""What the scripts that import assets share."""
import json


class Fault(Exception):
    """Something is not as expected. It ends the import before the first file is touched."""


def read_json(path):
    try:
        return json.loads(path.read_text(encoding="utf-8"))
    except ValueError as error:
        raise Fault(f"{path}: {error}") from error


def require_license(package, expected):
    stated = read_json(package / "package.json").get("license")
    if stated != expected:
        raise Fault(f"{package}: the license is {stated} and not {expected} any more")


def write_outcome(texts, *patterns):
    """Writes each text to its path. Other files that match a pattern, given as (folder, pattern), are removed."""
    for folder, pattern in patterns:
        for path in folder.glob(pattern):
            if path not in texts:
                path.unlink()
    for path, text in texts.items():
        # What stays the same keeps its time, so that nothing is built anew because of it.
        data = text.encode("utf-8")
        if not path.exists() or path.read_bytes() != data:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(data)
