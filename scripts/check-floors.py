#!/usr/bin/env python3
"""Fails when a file of src/ includes a folder that is not on a lower floor.

The floors are read from the table in docs/architecture.md, so the rule lives in one place:
a folder may include itself and any folder on a lower floor, never one beside or above it.
"""
import os
import re
import sys

top = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
row = re.compile(r"^\|\s*(\d+)\s*\|\s*([a-z, ]+?)\s*\|")
include = re.compile(r'^\s*#\s*include\s+"([a-z]+)/')

floors = {}
with open(os.path.join(top, "docs", "architecture.md"), encoding="utf-8") as doc:
    for line in doc:
        match = row.match(line)
        if match:
            for folder in match.group(2).split(","):
                floors[folder.strip()] = int(match.group(1))
if not floors:
    sys.exit("check-floors: no floor table found in docs/architecture.md")

problems = []
src = os.path.join(top, "src")
for folder in sorted(os.listdir(src)):
    if not os.path.isdir(os.path.join(src, folder)):
        continue
    if folder not in floors:
        problems.append(f"src/{folder}/ is on no floor of docs/architecture.md")
        continue
    for root, _, files in os.walk(os.path.join(src, folder)):
        for name in sorted(files):
            path = os.path.join(root, name)
            with open(path, encoding="utf-8", errors="replace") as source:
                for number, line in enumerate(source, 1):
                    match = include.match(line)
                    if not match or match.group(1) == folder:
                        continue
                    target = match.group(1)
                    if target not in floors:
                        problems.append(f"{os.path.relpath(path, top)}:{number}: includes unknown folder {target}/")
                    elif floors[target] >= floors[folder]:
                        problems.append(f"{os.path.relpath(path, top)}:{number}: {folder}/ (floor {floors[folder]}) "
                                        f"includes {target}/ (floor {floors[target]})")
for problem in problems:
    print(problem, file=sys.stderr)
if problems:
    sys.exit(1)
print(f"check-floors: {len(floors)} folders, every include goes down a floor")
