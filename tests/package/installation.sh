#!/usr/bin/env bash
# The installed programs find what they need, and desktops find the programs.
#
#   installation.sh CMAKE BUILD
source "$(dirname "${BASH_SOURCE[0]}")/installed.sh"

share=$prefix/share
desktop=$share/applications/pinmora.desktop
metainfo=$(echo "$share"/metainfo/*.metainfo.xml)

# value KEY: of the desktop entry.
value() {
    sed -n "s/^$1=//p" "$desktop"
}

desktop-file-validate "$desktop" || complain "The desktop entry is faulty."
appstreamcli validate --no-net "$metainfo" || complain "The AppStream metadata is faulty."
grep -qF "<launchable type=\"desktop-id\">$(basename "$desktop")</launchable>" "$metainfo" ||
    complain "The AppStream metadata does not lead to the desktop entry."
version=$("$prefix/bin/pinmora" --version)
grep -qF "<release version=\"${version#pinmora }\"" "$metainfo" ||
    complain "The AppStream metadata has not the program's version, $version."

read -r program _ <<<"$(value Exec)"
[[ -x $prefix/bin/$program ]] || complain "The desktop entry starts $program, which is not installed."
for folder in scalable 16x16; do
    [[ -f $share/icons/hicolor/$folder/apps/$(value Icon).svg ]] ||
        complain "The desktop entry's icon is missing in $folder."
done

# A type that nobody knows would never be found at any file.
types=$(cat /usr/share/mime/types <(sed -n 's/.*<mime-type type="\([^"]*\)".*/\1/p' "$share"/mime/packages/*.xml))
tr ';' '\n' <<<"$(value MimeType)" | while read -r type; do
    [[ -z $type ]] || grep -qxF "$type" <<<"$types" || {
        echo "There is no type of files $type." >&2
        exit 1
    }
done || failed=1
XDG_DATA_DIRS=$share update-mime-database "$share/mime" || complain "The types of files are faulty."

# The sample outing is where the programs look for it, and is enough for the command.
report=$("$prefix/bin/pinmora-tag" --offset 0:0:40 --no-places --dry-run --out "$prefix/copies" \
    "$prefix/share/pinmora/outing") || complain "The sample outing cannot be used."
photos=$(find "$prefix/share/pinmora/outing" -iname '*.jpg' | wc -l)
(($(grep -ci '\.jpg' <<<"$report") == photos && photos > 0)) ||
    complain "Not every photo of the sample outing is reported:" "$report"

exit "$failed"
