# Runs at the end of each installation. `bin`, `man` and `share` must be the folders below the prefix.
cmake_policy(VERSION 3.25)

# Links the lower-case names to the command, its page and its completions. On a file system that ignores case the names
# exist already, and a link would replace the file. The completions are also linked as those of kovalt-edit, because
# bash and fish look for a script with the name of the command.
foreach(path ${bin}/Kovalt ${man}/man1/Kovalt.1 ${share}/bash-completion/completions/Kovalt
             ${share}/fish/vendor_completions.d/Kovalt.fish)
  cmake_path(GET path PARENT_PATH folder)
  cmake_path(GET path FILENAME name)
  string(TOLOWER ${name} names)
  if(folder MATCHES completions)
    string(REPLACE Kovalt kovalt-edit edit_name ${name})
    list(APPEND names ${edit_name})
  endif()
  foreach(link_name IN LISTS names)
    set(link ${CMAKE_INSTALL_PREFIX}/${folder}/${link_name})
    set(place $ENV{DESTDIR}${link})
    if(EXISTS $ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/${path} AND (IS_SYMLINK ${place} OR NOT EXISTS ${place}))
      message(STATUS "Installing: ${place}")
      file(CREATE_LINK ${name} ${place} SYMBOLIC)
      list(APPEND CMAKE_INSTALL_MANIFEST_FILES ${link})
    endif()
  endforeach()
endforeach()

# Prints the line to add to a shell's startup file, unless the prefix is one of the further arguments, which the shell
# searches anyway, or DESTDIR is set.
function(print_completion_line shell file line)
  if(NOT CMAKE_INSTALL_PREFIX IN_LIST ARGN AND "$ENV{DESTDIR}" STREQUAL "")
    message(NOTICE "To complete in ${shell}, add to ${file}:\n  ${line}")
  endif()
endfunction()
set(data ${CMAKE_INSTALL_PREFIX}/${share})
set(home $ENV{HOME}/.local)
print_completion_line(bash ~/.bashrc ". \"${data}/bash-completion/completions/Kovalt\"" /usr /usr/local ${home})
print_completion_line(zsh "~/.zshrc, before compinit" "fpath=(\"${data}/zsh/site-functions\" $fpath)" /usr/local)
print_completion_line(fish ~/.config/fish/config.fish "set -p fish_complete_path \"${data}/fish/vendor_completions.d\""
                      /usr ${home})
