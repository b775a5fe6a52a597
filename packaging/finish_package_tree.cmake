# CPack runs this after it has installed the files into a temporary folder and before it packs them. Adds the files that
# only packages have, and removes differences between builds.
set(tree ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr)
set(share ${tree}/share)
set(documents ${share}/doc/kovalt)
# This time and the dates below are SOURCE_DATE_EPOCH if it is set.
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
  # Debian's zsh has a separate folder for packages.
  file(RENAME ${share}/zsh/site-functions ${share}/zsh/vendor-completions)
endif()

execute_process(COMMAND ${CPACK_KOVALT_STRIP} --remove-section=.comment ${tree}/bin/Kovalt ${tree}/libexec/kovalt/complete
                COMMAND_ERROR_IS_FATAL ANY)
# Compression renames the page, so the link to it is replaced.
file(REMOVE ${share}/man/man1/kovalt.1)
file(GLOB_RECURSE texts ${share}/man/* ${documents}/changelog*)
execute_process(COMMAND gzip -9n ${texts} COMMAND_ERROR_IS_FATAL ANY)
file(CREATE_LINK Kovalt.1.gz ${share}/man/man1/kovalt.1.gz SYMBOLIC)
# The permissions must not depend on the umask.
execute_process(COMMAND chmod -R u=rwX,go=rX ${tree} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND find ${tree} -exec touch --no-dereference --date=@${seconds} {} + COMMAND_ERROR_IS_FATAL ANY)
