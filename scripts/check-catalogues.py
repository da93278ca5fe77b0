#!/usr/bin/env python3
"""Fails when translations/*.ts are not what extracting the texts from src/ gives now.

Runs lupdate, with the options the build uses, over copies of the catalogues and compares.
Usage: check-catalogues.py LUPDATE [OPTION...]   (the test command passes both)
"""
import filecmp
import pathlib
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
UPDATE = "cmake --build build --target update_translations"


def sources():
    # The same files CMake hands lupdate: every .cpp and .h below src/.
    return sorted(str(p) for p in (ROOT / "src").rglob("*") if p.suffix in (".cpp", ".h"))


def main(argv):
    if len(argv) < 2:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    lupdate, options = argv[1], argv[2:]
    catalogues = sorted((ROOT / "translations").glob("*.ts"))
    with tempfile.TemporaryDirectory() as scratch:
        copies = []
        for catalogue in catalogues:
            copy = pathlib.Path(scratch) / catalogue.name
            shutil.copyfile(catalogue, copy)
            copies.append(copy)
        listing = pathlib.Path(scratch) / "sources.lst"
        listing.write_text("\n".join(sources()) + "\n")
        run = subprocess.run([lupdate, "-silent", *options, "@" + str(listing), "-ts", *map(str, copies)],
                             capture_output=True, text=True)
        if run.returncode != 0:
            print(run.stdout + run.stderr, file=sys.stderr)
            return 1
        stale = [c.name for c, copy in zip(catalogues, copies) if not filecmp.cmp(c, copy, shallow=False)]
    if stale:
        print(f"The catalogues are not current: {', '.join(stale)}. Run `{UPDATE}`, fill the new German "
              f"texts (scripts/translations-missing.py lists them) and commit translations/.", file=sys.stderr)
        return 1
    print(f"{len(catalogues)} catalogues current")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
