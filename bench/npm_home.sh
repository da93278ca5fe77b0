#!/usr/bin/env bash
# Builds a real npm-heavy home: one `npm install` of a few large packages (from the npm
# registry), copied into 20 projects under HOME_DIR/code, each with its package.json and a
# small source folder, as a JavaScript developer's home looks.
#   bench/npm_home.sh HOME_DIR
set -euo pipefail
HOME_DIR=$1
PACKAGES=(typescript webpack next react react-dom @babel/core eslint jest aws-sdk lodash rxjs
          @angular/core @angular/compiler)
TEMPLATE="$HOME_DIR/npm-template"
mkdir -p "$TEMPLATE"
(cd "$TEMPLATE" && npm init -y >/dev/null &&
    npm install --no-audit --no-fund --ignore-scripts --silent "${PACKAGES[@]}" >/dev/null)
for i in $(seq -w 1 20); do
    project="$HOME_DIR/code/app$i"
    mkdir -p "$project/src"
    cp -a "$TEMPLATE/node_modules" "$TEMPLATE/package.json" "$TEMPLATE/package-lock.json" "$project/"
    for f in $(seq 1 50); do echo "export const v$f = $f;" >"$project/src/m$f.js"; done
done
rm -rf "$TEMPLATE"
echo "npm home: $(find "$HOME_DIR" | wc -l) entries, $(du -sh "$HOME_DIR" | cut -f1)"
