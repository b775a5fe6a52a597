set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_CXX_COMPILER i686-linux-gnu-g++)
# No -L, so that the emulator uses the libraries of lib32stdc++6: with those of the cross compiler, forked children
# hang.
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-i386-static)
