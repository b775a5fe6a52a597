# Run by CPack between the installation into a folder of its own and the packing of that folder. Adds what only packages
# have, and removes what differs from one run to the next.
set(tree ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr)
set(share ${tree}/share)
set(documents ${share}/doc/kovalt)
# Both times are SOURCE_DATE_EPOCH where that is set.
string(TIMESTAMP seconds "%s" UTC)

file(COPY ${CMAKE_CURRENT_LIST_DIR}/copyright DESTINATION ${documents})
configure_file(${CMAKE_CURRENT_LIST_DIR}/../CHANGELOG.md ${documents}/changelog COPYONLY)
if(CPACK_GENERATOR STREQUAL RPM)
  string(TIMESTAMP date "%a %b %d %Y" UTC)
  set(CPACK_RPM_CHANGELOG_FILE ${CPACK_TOPLEVEL_DIRECTORY}/changelog.rpm)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog.rpm.in ${CPACK_RPM_CHANGELOG_FILE})
else()
  string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog.Debian.in ${documents}/changelog.Debian)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/lintian-overrides ${share}/lintian/overrides/kovalt COPYONLY)
  # Debian's zsh has a folder of its own for packages.
  file(RENAME ${share}/zsh/site-functions ${share}/zsh/vendor-completions)
endif()

execute_process(COMMAND ${CPACK_KOVALT_STRIP} --remove-section=.comment ${tree}/bin/Kovalt ${tree}/libexec/kovalt/complete
                COMMAND_ERROR_IS_FATAL ANY)
# The compressed page has another name, so the link to it is replaced.
file(REMOVE ${share}/man/man1/kovalt.1)
file(GLOB_RECURSE texts ${share}/man/* ${documents}/changelog*)
execute_process(COMMAND gzip -9n ${texts} COMMAND_ERROR_IS_FATAL ANY)
file(CREATE_LINK Kovalt.1.gz ${share}/man/man1/kovalt.1.gz SYMBOLIC)
# The permissions must not depend on the umask.
execute_process(COMMAND chmod -R u=rwX,go=rX ${tree} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND find ${tree} -exec touch --no-dereference --date=@${seconds} {} +
                COMMAND_ERROR_IS_FATAL ANY)
