# `cpack -G DEB` in a build makes the Debian package; tools/package.sh does it all.
set(CPACK_PACKAGE_NAME wortlex)
set(CPACK_PACKAGE_VENDOR "The Wortlex developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "recipes, brewing sessions and calculators for brewers")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 0wortlex1) # not one of Debian itself
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Wortlex developers <wortlex@example.org>")
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Wortlex is for home and professional brewers. You formulate recipes in it,
with databases of hops, malts, yeasts, waters, styles and extras and their
stock; it works out gravity, bitterness and color, mash schedules and strike
water, brewing salts, dilution, carbonation and alcohol, and keeps the log of
a brew day up to the bottle. It prints reports, labels and competition forms.
.
The program wortlex-report gives the figures and reports of recipe and session
files on the command line.")
set(CPACK_GENERATOR DEB)
include(CPack)
