# The Debian package, made by CPack from what is installed.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME sorvane)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR Sorvane)
set(CPACK_PACKAGE_CONTACT "The Sorvane developers <packages@${SORVANE_DOMAIN}>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "MIDI note remapper for performers")
set(CPACK_PACKAGE_DESCRIPTION
"Sorvane stands between a MIDI keyboard and a synthesizer and re-pitches notes
as they are played: choose a tonic and a scale, and the white keys play it.
Black keys recall presets, another tonic, another scale, at once.
.
It has MIDI ports of its own and opens any number of others, through ALSA,
JACK or PipeWire. It makes no sound itself.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
# The libraries as they are linked, and the letters of the instrument. Of the MIDI services ALSA is in every kernel.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-liberation)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "hicolor-icon-theme, qttranslations5-l10n")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "alsa-utils, fluidsynth, pipewire-jack, qjackctl")

set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/debian_files.cmake)
set(CPACK_SORVANE_CHANGELOG_MAKER ${CMAKE_CURRENT_LIST_DIR}/debian_changelog.sh)
include(CPack)
