# Run by CPack between the installation into a folder of its own and the packing of that folder: adds what packages have
# besides, and takes away what differs from one run to the next.
set(tree ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr)
set(share ${tree}/share)
set(documents ${share}/doc/kovalt)
# Both times are SOURCE_DATE_EPOCH where that is set.
string(TIMESTAMP seconds "%s" UTC)

file(COPY ${CMAKE_CURRENT_LIST_DIR}/copyright DESTINATION ${documents})
configure_file(${CMAKE_CURRENT_LIST_DIR}/../CHANGELOG.md ${documents}/changelog COPYONLY)
if(CPACK_GENERATOR STREQUAL RPM)
  file(RENAME ${share}/zsh/vendor-completions ${share}/zsh/site-functions)
  string(TIMESTAMP date "%a %b %d %Y" UTC)
  set(CPACK_RPM_CHANGELOG_FILE ${CPACK_TOPLEVEL_DIRECTORY}/changelog.rpm)
  file(WRITE ${CPACK_RPM_CHANGELOG_FILE}
       "* ${date} ${CPACK_PACKAGE_CONTACT} - ${CPACK_PACKAGE_VERSION}-${CPACK_RPM_PACKAGE_RELEASE}\n"
       "- Package version ${CPACK_PACKAGE_VERSION}.\n")
else()
  configure_file(${CMAKE_CURRENT_LIST_DIR}/lintian-overrides ${share}/lintian/overrides/kovalt COPYONLY)
  string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
  file(
    WRITE ${documents}/changelog.Debian
    "kovalt (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium

  * Package version ${CPACK_PACKAGE_VERSION}.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
endif()

execute_process(COMMAND ${CPACK_KOVALT_STRIP} --remove-section=.comment ${tree}/bin/Kovalt ${tree}/libexec/kovalt/complete
                COMMAND_ERROR_IS_FATAL ANY)
# The link to the page is made anew with the name that the page has once it is compressed.
file(REMOVE ${share}/man/man1/kovalt.1)
file(GLOB_RECURSE texts ${share}/man/* ${documents}/changelog*)
execute_process(COMMAND gzip -9n ${texts} COMMAND_ERROR_IS_FATAL ANY)
file(CREATE_LINK Kovalt.1.gz ${share}/man/man1/kovalt.1.gz SYMBOLIC)
# The permissions must not depend on the umask.
execute_process(COMMAND chmod -R u=rwX,go=rX ${tree} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND find ${tree} -exec touch --no-dereference --date=@${seconds} {} +
                COMMAND_ERROR_IS_FATAL ANY)
