#!/usr/bin/env bash
# install_test.sh BUILD: installs a build under a prefix of its own and starts the launcher as a brewer would, with
# a program in place of the real one that tells where it runs and what it is given.
set -eu
place=$(mktemp -d)
trap 'chmod -R u+w "$place"; rm -rf "$place"' EXIT
prefix="$place/an odd  prefix"
home="$place/Brewer's home"
brewery=$home/.local/share/wortlex
mkdir "$home"

fail() {
    echo "$1"
    exit 1
}

# start LAUNCHER ARGUMENTS...: what the program tells, the folder and then an argument a line.
start() {
    env -u XDG_DATA_HOME HOME="$home" "$@"
}
launcher=$prefix/bin/wortlex

cmake --install "$1" --prefix "$prefix" > /dev/null
for file in bin/wortlex-report libexec/wortlex/wortlex share/applications/wortlex.desktop share/mime/packages/wortlex.xml \
    share/icons/hicolor/scalable/apps/wortlex.svg share/icons/hicolor/scalable/mimetypes/application-x-wortlex-recipe.svg; do
    [ -s "$prefix/$file" ] || fail "$file is not installed"
done
printf '#!/bin/sh\npwd\nfor each; do echo "$each"; done\n' > "$prefix/libexec/wortlex/wortlex"
chmod -R a-w "$prefix/share"

# The first start is cut off in the middle: a folder is in the way of one.
mkdir -p "$brewery"
echo mine > "$brewery/HOPS.DAT"
: > "$brewery/Sessions"
if start "$launcher" > /dev/null 2> "$place/complaint"; then fail "a start without a whole folder"; fi
grep -qF "$brewery" "$place/complaint" || fail "no word of the folder that cannot be filled"
rm "$brewery/Sessions"

sample="Recipes/Ploughman's Best Bitter.rec"
[ "$(start "$launcher")" = "$brewery" ] || fail "the program does not run in the brewery folder"
(cd "$prefix/share/wortlex/brewery" && find . -type f ! -name HOPS.DAT -print0) |
    (cd "$brewery" && xargs -0 sh -ec 'for each; do cmp "$0/$each" "$each"; [ -w "$each" ]; done' \
        "$prefix/share/wortlex/brewery") || fail "the folder is not the installed one"
[ "$(cat "$brewery/HOPS.DAT")" = mine ] || fail "a brewer's file was overwritten"
[ -d "$brewery/HTML_Themes" ] || fail "an empty folder did not arrive"

# Later starts bring nothing back, and the launcher may be a link.
rm "$brewery/$sample"
ln -s "$launcher" "$place/link"
cd "$place"
told=$(start ./link "a  b's.rec" --option "$place/c.rec" '$HOME "d".brw')
[ "$told" = "$brewery
$place/a  b's.rec
--option
$place/c.rec
$place/\$HOME \"d\".brw" ] || fail "the arguments became: $told"
[ ! -e "$brewery/$sample" ] || fail "a deleted sample came back"
[ -z "$(find "$brewery" -name '.wortlex-copy*')" ] || fail "a half of a file is left"

told=$(XDG_DATA_HOME="$place/else where" "$launcher")
[ "$told" = "$place/else where/wortlex" ] || fail "XDG_DATA_HOME is not followed"
if HOME=/dev/null XDG_DATA_HOME=relative "$launcher" 2> "$place/complaint"; then fail "a start in no folder"; fi
grep -qF "/dev/null/.local/share/wortlex cannot be made" "$place/complaint" || fail "no word of the missing folder"
