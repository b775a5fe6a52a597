# The warnings that every target is compiled with; each is an error.
add_library(kovalt_warnings INTERFACE)
target_compile_options(
  kovalt_warnings
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            -Wsign-conversion
            -Wold-style-cast
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Wcast-align
            -Wformat=2
            -Werror)
