#!/usr/bin/env bash
# Makes the packages of a release build in build/packages: one for Debian, and a portable folder to be unpacked and
# run, with the libraries that it needs. Its brewery lies in it.
set -eu
cd "$(dirname "$0")/.."
. tools/install.sh
install_missing g++ cmake ninja-build qt6-base-dev qt6-svg-dev qt6-wayland libfontconfig-dev libjpeg-dev binutils dpkg-dev file patchelf
packages=$PWD/build/packages

# What every desktop has, and what belongs to its drivers, is taken from there, with all that it needs itself.
of_every_system='^(ld-linux.*|lib(c|m|dl|rt|pthread|resolv|stdc\+\+|gcc_s|GL|EGL|GLX|OpenGL|drm|gbm|xcb|X11|X11-xcb'
of_every_system+='|wayland-client|wayland-cursor|fontconfig|freetype|z|cups|dbus-1)\.so\..*)$'

# libraries_of FILES...: the paths of all others that these files need, and those need in turn.
libraries_of() {
    local -A places=()
    local name arrow path rest
    while read -r name arrow path rest; do
        [ "$arrow" != "=>" ] || places[$name]=$path
    done < <(ldd "$@")
    local -A found=()
    local files=("$@")
    while [ ${#files[@]} -gt 0 ]; do
        mapfile -t names < <(objdump -p "${files[@]}" | sed -n 's/^ *NEEDED *//p' | grep -Ev "$of_every_system" | sort -u)
        files=()
        for name in "${names[@]}"; do
            [ -z "${found[$name]:-}" ] || continue
            found[$name]=${places[$name]}
            files+=("${places[$name]}")
        done
    done
    printf '%s\n' "${found[@]}"
}

copy_plugins() {
    local from kind
    from=$(qtpaths6 --query QT_INSTALL_PLUGINS 2> /dev/null || qmake6 -query QT_INSTALL_PLUGINS)
    for kind in platforms/libqxcb platforms/libqwayland-generic platforms/libqoffscreen imageformats/libqsvg \
        iconengines/libqsvgicon platforminputcontexts/libcomposeplatforminputcontextplugin \
        platforminputcontexts/libibusplatforminputcontextplugin \
        printsupport/libcupsprintersupport wayland-shell-integration/libxdg-shell \
        wayland-decoration-client/libbradient; do
        install -D -m 644 "$from/$kind.so" "$1/$kind.so"
    done
}

# copy_licences FILES...: of the packages that they come from.
copy_licences() {
    dpkg-query -S "${@/#*\//*/}" 2> /dev/null | sed 's/:.*//' | sort -u | while read -r package; do
        install -D -m 644 "/usr/share/doc/$package/copyright" "$licences/$package"
    done
}

make_portable() {
    local folder=$packages/Wortlex-$version
    local licences=$folder/share/doc/wortlex/licences
    rm -rf "$folder"
    DESTDIR=/ cmake --install build/release --prefix "$folder" --strip > /dev/null
    mkdir "$folder/brewery" "$folder/lib"
    copy_plugins "$folder/plugins"
    local plugins libraries
    mapfile -t plugins < <(find "$folder/plugins" -name '*.so')
    mapfile -t libraries < <(libraries_of "$folder"/bin/wortlex* "${plugins[@]}")
    install -m 644 "${libraries[@]}" "$folder/lib"
    # The programs' own path counts for the libraries of libraries, too.
    patchelf --force-rpath --set-rpath '$ORIGIN/../lib' "$folder"/bin/wortlex*
    printf '[Paths]\nPrefix=..\nPlugins=plugins\n' > "$folder/bin/qt.conf"
    copy_licences "${libraries[@]}" "${plugins[@]}"
    ln -s bin/wortlex "$folder/wortlex"
    cp data/desktop/portable.txt "$folder/README.txt"
    tar -C "$packages" --owner=0 --group=0 --sort=name -czf "$packages/wortlex-$version-portable.tar.gz" "Wortlex-$version"
    rm -rf "$folder"
}

cmake --preset release > /dev/null
cmake --build --preset release
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:.*=//p' build/release/CMakeCache.txt)
mkdir -p "$packages"
(cd build/release && cpack -B "$packages/work" > /dev/null)
mv "$packages"/work/*.deb "$packages"
rm -rf "$packages/work"
make_portable
ls -sh "$packages"
