#!/usr/bin/env python3
"""Generates deep trees for bench/deep_bench.sh, built by descriptors (os.mkdir with dir_fd),
since their deepest paths are longer than any path call accepts.
  deep_tree.py chain FOLDER LEVELS    a chain of folders "d", each holding a 100-byte file
  deep_tree.py modules FOLDER LEVELS  a project whose node_modules nest LEVELS packages deep,
                                      each with package.json, index.js and a sibling package
                                      of 30 files in lib/
"""
import os
import sys


def write(folder_fd, name, size):
    fd = os.open(name, os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o644, dir_fd=folder_fd)
    os.write(fd, b"x" * size)
    os.close(fd)


def descend(folder_fd, name):
    os.mkdir(name, 0o755, dir_fd=folder_fd)
    child = os.open(name, os.O_RDONLY | os.O_DIRECTORY, dir_fd=folder_fd)
    os.close(folder_fd)
    return child


def chain(folder, levels):
    fd = os.open(folder, os.O_RDONLY | os.O_DIRECTORY)
    for _ in range(levels):
        write(fd, "f", 100)
        fd = descend(fd, "d")
    os.close(fd)


def modules(folder, levels):
    fd = os.open(folder, os.O_RDONLY | os.O_DIRECTORY)
    write(fd, "package.json", 200)
    for level in range(levels):
        fd = descend(fd, "node_modules")
        side = descend(os.dup(fd), "helper-%d" % level)
        write(side, "package.json", 300)
        write(side, "index.js", 2000)
        side = descend(side, "lib")
        for number in range(30):
            write(side, "part-%d.js" % number, 700)
        os.close(side)
        fd = descend(fd, "pkg-%d" % level)
        write(fd, "package.json", 300)
        write(fd, "index.js", 2000)
    os.close(fd)


if __name__ == "__main__":
    kind, folder, levels = sys.argv[1], sys.argv[2], int(sys.argv[3])
    os.makedirs(folder, exist_ok=True)
    {"chain": chain, "modules": modules}[kind](folder, levels)
