# Debian's cross compiler on the sysroot that make-sysroot unpacks. Where it stands: QUVERA_SYSROOT in the environment,
# else build/armhf-sysroot.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR armv7l)
set(CMAKE_LIBRARY_ARCHITECTURE arm-linux-gnueabihf)
set(CMAKE_CXX_COMPILER arm-linux-gnueabihf-g++)
# The compiler only notes what changed between its versions 6 and 7. Recordings may outgrow 2 GiB.
set(CMAKE_CXX_FLAGS_INIT "-Wno-psabi -D_FILE_OFFSET_BITS=64")
if(DEFINED ENV{QUVERA_SYSROOT})
  set(CMAKE_SYSROOT $ENV{QUVERA_SYSROOT})
else()
  set(CMAKE_SYSROOT ${CMAKE_CURRENT_LIST_DIR}/../../build/armhf-sysroot)
endif()
# plainpixels runs while the pictures are packed.
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm-static;-L;${CMAKE_SYSROOT})
set(CMAKE_FIND_ROOT_PATH ${CMAKE_SYSROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${CMAKE_SYSROOT})
set(ENV{PKG_CONFIG_LIBDIR} ${CMAKE_SYSROOT}/usr/lib/arm-linux-gnueabihf/pkgconfig:${CMAKE_SYSROOT}/usr/share/pkgconfig)
