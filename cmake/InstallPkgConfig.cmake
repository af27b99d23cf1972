# Runs during the installation: writes the prefix into msglib.pc and installs it. The prefix is relative to the file, so that an
# installed tree is relocatable, with two exceptions. Below /usr the prefix is absolute: pkg-config omits the compiler's own
# folders only in that spelling, and -isystem /usr/include would hide the C library from the C++ library. If the path of the
# file contains quotes, the prefix is absolute too: values that begin with it would end at the quote.

if(pc_relative_prefix AND NOT CMAKE_INSTALL_PREFIX MATCHES "^/usr/?$|['\"]")
    set(pc_prefix "\${pcfiledir}/${pc_relative_prefix}")
else()
    string(REGEX REPLACE "([ '\"])" "\\\\\\1" pc_prefix "${CMAKE_INSTALL_PREFIX}")
endif()
configure_file(${pc_folder}/msglib.pc.in ${pc_folder}/msglib.pc @ONLY)
cmake_path(APPEND CMAKE_INSTALL_PREFIX ${pc_dir} OUTPUT_VARIABLE pc_destination)
file(INSTALL ${pc_folder}/msglib.pc DESTINATION ${pc_destination})
