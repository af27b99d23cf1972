# Runs during the installation: gives msglib.pc its prefix, and installs it. The prefix is relative to the file, so that an
# installed tree can be moved, with two exceptions. Below /usr, pkg-config leaves out the compiler's own folders only if they
# are spelled so, and -isystem /usr/include would hide the C library from the C++ one. Quotes in the path of the file would
# end the values that begin with it.

if(pc_relative_prefix AND NOT CMAKE_INSTALL_PREFIX MATCHES "^/usr/?$|['\"]")
    set(pc_prefix "\${pcfiledir}/${pc_relative_prefix}")
else()
    string(REGEX REPLACE "([ '\"])" "\\\\\\1" pc_prefix "${CMAKE_INSTALL_PREFIX}")
endif()
configure_file(${pc_folder}/msglib.pc.in ${pc_folder}/msglib.pc @ONLY)
cmake_path(APPEND CMAKE_INSTALL_PREFIX ${pc_dir} OUTPUT_VARIABLE pc_destination)
file(INSTALL ${pc_folder}/msglib.pc DESTINATION ${pc_destination})
