#!/usr/bin/env bash
# install_test.sh BUILD: installs a build under a prefix of its own and runs it from there as a brewer would.
set -eu
place=$(mktemp -d)
trap 'chmod -R u+w "$place"; rm -rf "$place"' EXIT
prefix="$place/an öd  prefix"
home="$place/Brewer's home"
brewery=$home/.local/share/wortlex
sample="Recipes/Ploughman's Best Bitter.rec"
mkdir "$home"

fail() {
    echo "$1"
    exit 1
}

report() {
    (cd "$home" && env -u XDG_DATA_HOME HOME="$home" "$@")
}

cmake --install "$1" --prefix "$prefix" > /dev/null
for file in bin/wortlex share/applications/wortlex.desktop share/metainfo/org.wortlex.Wortlex.metainfo.xml \
    share/mime/packages/wortlex.xml share/icons/hicolor/scalable/apps/wortlex.svg \
    share/icons/hicolor/48x48/apps/wortlex.png share/icons/hicolor/16x16/mimetypes/application-x-wortlex-session.png \
    share/man/man1/wortlex.1.gz share/man/man1/wortlex-report.1.gz share/doc/wortlex/copyright; do
    [ -s "$prefix/$file" ] || fail "$file is not installed"
done
chmod -R a-w "$prefix/share"

# The first start makes the whole brewery, through a link, too.
ln -s "$prefix/bin/wortlex-report" "$place/link"
report "$place/link" "$brewery/$sample" | grep -q "Ploughman's" || fail "no report from an installed program"
diff -r -x '.wortlex*' "$prefix/share/wortlex/brewery" "$brewery" || fail "the folder is not the installed one"
report "$place/link" --json "$brewery/$sample" > "$place/installed"
(cd "$brewery" && "$1/src/wortlex-report" --json "$brewery/$sample") | cmp - "$place/installed" ||
    fail "the figures are not those of the brewery"

# A portable copy has its brewery inside it.
chmod u+w "$prefix"
mkdir "$prefix/brewery"
report "$prefix/bin/wortlex-report" "$prefix/brewery/$sample" > /dev/null || fail "no brewery in the portable copy"
