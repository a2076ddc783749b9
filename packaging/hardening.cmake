# SPDX-License-Identifier: MIT
# Builds that are not for debugging are hardened, and the same wherever they are made.
include(CheckPIESupported)
check_pie_supported()

# Generated code names no directory either. Of the maps, the last that fits counts.
set(CMAKE_AUTOMOC_PATH_PREFIX ON)
set(MAPS -ffile-prefix-map=${CMAKE_SOURCE_DIR}=. -ffile-prefix-map=${CMAKE_BINARY_DIR}=.)
if(CMAKE_SYSROOT)
    list(APPEND MAPS -ffile-prefix-map=${CMAKE_SYSROOT}=)
endif()
target_compile_options(moniconf_rules INTERFACE "$<$<NOT:$<CONFIG:Debug>>:${MAPS}\
;-fstack-protector-strong;-fstack-clash-protection;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
target_link_options(moniconf_rules INTERFACE "$<$<NOT:$<CONFIG:Debug>>:LINKER:-z,relro,-z,now>")
