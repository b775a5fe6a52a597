set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_CXX_COMPILER i686-linux-gnu-g++)
# Forked children hang under the emulator with the libraries of the cross compiler, and not with those of lib32stdc++6.
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-i386-static)
