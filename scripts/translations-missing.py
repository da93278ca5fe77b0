#!/usr/bin/env python3
"""Lists the messages of a catalogue that still need a translation, with their source text and
translator comment, so they can be filled in one pass.

Usage: translations-missing.py [CATALOGUE]   (default: translations/dustlark_de.ts)
Exit status 1 when something is missing, 0 when the catalogue is complete.
"""
import pathlib
import sys
import xml.etree.ElementTree as ET

ROOT = pathlib.Path(__file__).resolve().parent.parent


def missing(message, source_language):
    if source_language and message.get("numerus") != "yes":
        return False  # an English text is its own source; only the forms of a count are needed
    translation = message.find("translation")
    if translation is None or translation.get("type") == "unfinished":
        return True
    if message.get("numerus") == "yes":
        forms = translation.findall("numerusform")
        return not forms or any(not (form.text or "").strip() for form in forms)
    return not (translation.text or "").strip()


def main(argv):
    path = pathlib.Path(argv[1]) if len(argv) > 1 else ROOT / "translations" / "dustlark_de.ts"
    root = ET.parse(path).getroot()
    source_language = (root.get("language") or "").startswith("en")
    count = 0
    for context in root.iter("context"):
        name = context.findtext("name")
        for message in context.iter("message"):
            if not missing(message, source_language):
                continue
            count += 1
            counted = " (counted: one form per plural)" if message.get("numerus") == "yes" else ""
            print(f"[{name}]{counted}\n  source:  {message.findtext('source')}\n"
                  f"  comment: {message.findtext('extracomment') or '(none: add a //: comment in the code)'}\n")
    print(f"{count} unfinished in {path.name}", file=sys.stderr)
    return 1 if count else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
