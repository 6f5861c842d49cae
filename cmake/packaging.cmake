# Install rules and the Debian package. `cmake --install` lays the program out as a distribution
# would (binaries in bin/, the files a new program folder is filled from in share/tesk/, the
# desktop entry, AppStream metainfo, icons and man pages in their XDG and FHS places); CPack turns
# that into tesk_<version>_<arch>.deb. The version is the one of project() in CMakeLists.txt.

# Whoever builds the package for others puts their own name and address here (README).
set(TESK_PACKAGE_MAINTAINER "TESK packager <packager@example.org>"
    CACHE STRING "Maintainer field of the Debian package")

# Follows SOURCE_DATE_EPOCH when set, so a rebuild of the same tree gives the same files.
string(TIMESTAMP TESK_RELEASE_DATE "%Y-%m-%d" UTC)
string(TIMESTAMP TESK_CHANGELOG_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)

set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
    GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(_pkg_src ${CMAKE_SOURCE_DIR}/packaging)
set(_pkg_out ${CMAKE_BINARY_DIR}/packaging)
set(_app_id org.tesk.Tesk)

foreach(target tesk tesk-sim)
  if(TARGET ${target})
    install(TARGETS ${target} RUNTIME DESTINATION bin)
  endif()
endforeach()

# Found at start-up as ../share/tesk beside the binary.
install(DIRECTORY ${CMAKE_SOURCE_DIR}/data/ DESTINATION share/tesk)

install(FILES ${_pkg_src}/${_app_id}.desktop DESTINATION share/applications)
configure_file(${_pkg_src}/${_app_id}.metainfo.xml ${_pkg_out}/${_app_id}.metainfo.xml @ONLY)
install(FILES ${_pkg_out}/${_app_id}.metainfo.xml DESTINATION share/metainfo)
install(FILES ${_pkg_src}/${_app_id}.svg DESTINATION share/icons/hicolor/scalable/apps)
install(FILES ${_pkg_src}/copyright DESTINATION share/doc/tesk)

# Made at build time, so that the drawing is the only copy of the icon kept in the tree.
set(_pkg_generated "")
find_program(TESK_RSVG_CONVERT rsvg-convert)
if(TESK_RSVG_CONVERT)
  set(_png ${_pkg_out}/icon-128/${_app_id}.png)
  add_custom_command(
    OUTPUT ${_png}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${_pkg_out}/icon-128
    COMMAND ${TESK_RSVG_CONVERT} -w 128 -h 128 -o ${_png} ${_pkg_src}/${_app_id}.svg
    DEPENDS ${_pkg_src}/${_app_id}.svg
    VERBATIM)
  list(APPEND _pkg_generated ${_png})
  install(FILES ${_png} DESTINATION share/icons/hicolor/128x128/apps)
else()
  message(STATUS "rsvg-convert not found: the 128 px icon is left out of the install")
endif()

# Man pages and the changelog, compressed the way Debian wants them (no name or time stamp).
find_program(TESK_GZIP gzip REQUIRED)
foreach(page tesk.1 tesk-sim.1 changelog)
  configure_file(${_pkg_src}/${page} ${_pkg_out}/${page} @ONLY)
  add_custom_command(
    OUTPUT ${_pkg_out}/${page}.gz
    COMMAND ${TESK_GZIP} -9nf -k ${_pkg_out}/${page}
    DEPENDS ${_pkg_out}/${page}
    VERBATIM)
  list(APPEND _pkg_generated ${_pkg_out}/${page}.gz)
endforeach()
install(FILES ${_pkg_out}/tesk.1.gz ${_pkg_out}/tesk-sim.1.gz DESTINATION share/man/man1)
install(FILES ${_pkg_out}/changelog.gz DESTINATION share/doc/tesk)
add_custom_target(tesk_package_files ALL DEPENDS ${_pkg_generated})

# ---- the Debian package -------------------------------------------------------------------
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tesk)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_CONTACT ${TESK_PACKAGE_MAINTAINER})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
    "operator's console for packet radio through satellite digipeaters")
# The long description under the summary; Debian wants its lines short.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "TESK is an operator's console for amateur-radio AX.25 packet work through
the digipeaters of the International Space Station and other satellites.
During a pass it shows every received frame in a coloured Monitor, marks the
station's own digipeated frames, keeps the list of stations heard, and sends
UI text, APRS positions, APRS messages and heard reports.

TESK drives no radio itself: it is a client of a packet engine such as
Dire Wolf, reached over the AGWPE host interface. A simulated satellite pass
(tesk --demo, tesk-sim) lets an operator try it without a radio.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${TESK_PACKAGE_MAINTAINER})
set(CPACK_DEBIAN_PACKAGE_SECTION hamradio)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS direwolf)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
