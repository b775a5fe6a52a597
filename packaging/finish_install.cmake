# Run at the end of each installation. Expects `bin`, `man` and `share`, the folders below the prefix.
cmake_policy(VERSION 3.25)

# The command is found in lower case too, with its page and its completions. On a file system that does not tell the
# names apart it is found anyway, and a link would take the place of the file.
foreach(path ${bin}/Kovalt ${man}/man1/Kovalt.1 ${share}/bash-completion/completions/Kovalt
             ${share}/fish/vendor_completions.d/Kovalt.fish)
  cmake_path(GET path PARENT_PATH folder)
  cmake_path(GET path FILENAME name)
  string(TOLOWER ${name} lower_name)
  set(link ${CMAKE_INSTALL_PREFIX}/${folder}/${lower_name})
  set(place $ENV{DESTDIR}${link})
  if(EXISTS $ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/${path} AND (IS_SYMLINK ${place} OR NOT EXISTS ${place}))
    message(STATUS "Installing: ${place}")
    file(CREATE_LINK ${name} ${place} SYMBOLIC)
    list(APPEND CMAKE_INSTALL_MANIFEST_FILES ${link})
  endif()
endforeach()

# A shell that does not look for completions below the prefix takes a line in the file with which it starts.
function(tell_completion shell file line)
  if(NOT CMAKE_INSTALL_PREFIX IN_LIST ARGN)
    message(NOTICE "To complete in ${shell}, add to ${file}:\n  ${line}")
  endif()
endfunction()
if("$ENV{DESTDIR}" STREQUAL "")
  set(data ${CMAKE_INSTALL_PREFIX}/${share})
  set(home $ENV{HOME}/.local)
  tell_completion(bash ~/.bashrc ". \"${data}/bash-completion/completions/Kovalt\"" /usr /usr/local ${home})
  tell_completion(zsh "~/.zshrc, before compinit" "fpath=(\"${data}/zsh/site-functions\" $fpath)" /usr /usr/local)
  tell_completion(fish ~/.config/fish/config.fish "set -p fish_complete_path \"${data}/fish/vendor_completions.d\"" /usr
                  ${home})
endif()
