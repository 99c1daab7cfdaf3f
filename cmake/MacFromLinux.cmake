# Toolchain for linking what runs on a Mac on Linux, against the folder that scripts/make-macos-sdk makes. For checks
# only. Needs -DKINESTA_MACOS_SDK=FOLDER and -DCMAKE_OSX_ARCHITECTURES=arm64 or x86_64.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KINESTA_MACOS_SDK CMAKE_OSX_ARCHITECTURES CMAKE_OSX_DEPLOYMENT_TARGET)
set(CMAKE_OSX_SYSROOT ${KINESTA_MACOS_SDK})
set(CMAKE_SYSTEM_PROCESSOR ${CMAKE_OSX_ARCHITECTURES})

set(llvm /usr/lib/llvm-16/bin)
foreach(language C CXX OBJCXX)
    set(CMAKE_${language}_COMPILER ${llvm}/clang++)
    set(CMAKE_${language}_COMPILER_TARGET ${CMAKE_OSX_ARCHITECTURES}-apple-macos)
endforeach()
set(CMAKE_C_COMPILER ${llvm}/clang)
foreach(tool AR RANLIB NM OBJDUMP STRIP)
    string(TOLOWER ${tool} name)
    set(CMAKE_${tool} ${llvm}/llvm-${name})
endforeach()
set(CMAKE_LINKER ${llvm}/ld64.lld)
set(CMAKE_INSTALL_NAME_TOOL ${llvm}/llvm-install-name-tool)
set(standard_library "-nostdinc++ -isystem ${KINESTA_MACOS_SDK}/usr/include/c++/v1")
set(CMAKE_CXX_FLAGS_INIT ${standard_library})
set(CMAKE_OBJCXX_FLAGS_INIT ${standard_library})
# The whole layer, not only what the command line uses of it.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-fuse-ld=lld -mlinker-version=1115 -Wl,-adhoc_codesign -Wl,-all_load -Wno-unused-command-line-argument")

# Packages come only from the folder: the headers of Linux must stay out.
set(CMAKE_FIND_ROOT_PATH ${KINESTA_MACOS_SDK})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind LIBRARY INCLUDE PACKAGE)
    set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()
set(ENV{PKG_CONFIG_LIBDIR} ${KINESTA_MACOS_SDK}/usr/lib/pkgconfig)
