# Run by CPack between installing and packing: what only Debian wants, in its form.
set(share ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share)
set(changelog ${share}/doc/sorvane/changelog)
execute_process(COMMAND ${CPACK_SORVANE_CHANGELOG_MAKER} ${share}/doc/sorvane/CHANGELOG.md ${CPACK_PACKAGE_CONTACT}
  OUTPUT_FILE ${changelog} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND gzip -9nf ${changelog} ${share}/man/man1/sorvane.1 COMMAND_ERROR_IS_FATAL ANY)
file(CHMOD ${changelog}.gz ${share}/man/man1/sorvane.1.gz PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
