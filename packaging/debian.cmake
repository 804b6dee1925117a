# The Debian package. `cpack` makes it in the build folder; script/package does all of it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME pinmora)
set(CPACK_PACKAGE_VENDOR "Pinmora developers")
set(CPACK_PACKAGE_CONTACT "${PINMORA_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "put photos on the map with a GPS log")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Pinmora finds out where photos were taken and saves copies that say so:
position, altitude and place names stand in the copy's metadata, where
photo albums and maps look for them. The photos themselves are never
changed.
.
It reads GPX files and NMEA logs, notices when the camera's clock was
wrong, and places photos by hand where there is no log. A wizard leads
through the job; pinmora-tag does it on the command line.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# The libraries are found by what is linked. What is only run or loaded at run time is not: ExifTool,
# Qt's readers of further picture formats, time zones.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
string(JOIN ", " CPACK_DEBIAN_PACKAGE_DEPENDS
    libimage-exiftool-perl qt6-image-formats-plugins tzdata)
# Certificates for map tiles, desktops other than X11's, Qt's own texts in the person's language, the
# types of files, and what opens a web page.
string(JOIN ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS
    ca-certificates hicolor-icon-theme qt6-translations-l10n qt6-wayland shared-mime-info xdg-utils)
include(CPack)
