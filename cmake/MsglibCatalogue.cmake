# Message catalogues: from a message text file to a table inside a module.

include_guard(GLOBAL)

# msglib_add_catalogue(<target> <file.mc>)
#
# Embeds the message tables of a message text file (UTF-8) in an executable, a library of any kind or a module. The
# target's sources can then include <Name>.h, where Name is the file's name without ".mc": it has the identifiers and
# `void register<Name>()` (in upper camel case), which registers every facility that the file uses.
#
# The target links msglib::msglib itself. It may be given any number of files, and a file to any number of targets. In a
# static library, the table comes along with the registration function: a program that never calls it has none. On
# Windows, the tables are a resource of the module, which a static library cannot have.
function(msglib_add_catalogue target file)
    if(NOT TARGET ${target})
        message(FATAL_ERROR "msglib_add_catalogue: no such target: ${target}")
    endif()
    cmake_path(ABSOLUTE_PATH file NORMALIZE)
    if(NOT EXISTS "${file}")
        message(FATAL_ERROR "msglib_add_catalogue: no such file: ${file}")
    endif()
    if(NOT TARGET msglib::msgtable)
        _msglib_find_tool()
    endif()
    find_program(MSGLIB_WINDMC NAMES x86_64-w64-mingw32-windmc windmc
        DOC "Message compiler of the GNU binary utilities")
    if(NOT MSGLIB_WINDMC)
        message(FATAL_ERROR "msglib_add_catalogue: the message compiler windmc is missing; Debian has it in the "
            "package binutils-mingw-w64-x86-64. Its path can be given in MSGLIB_WINDMC.")
    endif()

    cmake_path(GET file STEM LAST_ONLY name)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/${target}.catalogues/${name}")
    string(MAKE_C_IDENTIFIER "${target}_${name}_catalogue" step)
    if(TARGET ${step})
        message(FATAL_ERROR "msglib_add_catalogue: ${target} has a catalogue ${name} already")
    endif()

    _msglib_generate_catalogue("${file}" "${name}" "${folder}")
    # A rule is known in its own folder only; this step brings it to targets of other folders.
    add_custom_target(${step} DEPENDS "${folder}/${name}.cpp")
    add_dependencies(${target} ${step})

    target_sources(${target} PRIVATE "${folder}/${name}.cpp")
    target_include_directories(${target} PRIVATE "${folder}")
    if(WIN32)
        _msglib_embed_as_resource(${target} "${folder}" "${name}")
    else()
        _msglib_embed_in_elf(${target} "${folder}" "${name}")
    endif()
endfunction()

# Finds the program that compiles catalogues where neither the build nor the installed library has one.
function(_msglib_find_tool)
    find_program(MSGLIB_TOOL NAMES msgtable DOC "The program that compiles message catalogues")
    if(NOT MSGLIB_TOOL)
        message(FATAL_ERROR "msglib_add_catalogue: the program msgtable is missing; Debian has it in the package "
            "msglib-tools. Its path can be given in MSGLIB_TOOL.")
    endif()
    add_executable(msglib::msgtable IMPORTED GLOBAL)
    set_target_properties(msglib::msgtable PROPERTIES IMPORTED_LOCATION "${MSGLIB_TOOL}")
endfunction()

# Makes <name>.h, <name>.cpp and <name>.bin in `folder`.
function(_msglib_generate_catalogue file name folder)
    file(MAKE_DIRECTORY "${folder}/compiled")
    add_custom_command(
        OUTPUT "${folder}/${name}.cpp" "${folder}/${name}.h" "${folder}/${name}.bin"
        COMMAND msglib::msgtable prepare "${file}" "${folder}/compiled/${name}.mc"
        COMMAND "${MSGLIB_WINDMC}" -C 65001 -O 65001 -h compiled -r compiled "compiled/${name}.mc"
        COMMAND msglib::msgtable generate "${file}" "${folder}/compiled" "${folder}"
        DEPENDS "${file}" msglib::msgtable
        WORKING_DIRECTORY "${folder}"
        COMMENT "Compiling message table ${name}"
        VERBATIM)
endfunction()

# Has the generated source compiled so that the note in its assembler block stays in its object file.
function(_msglib_embed_in_elf target folder name)
    set_source_files_properties("${folder}/${name}.cpp" TARGET_DIRECTORY ${target} PROPERTIES
        GENERATED TRUE
        OBJECT_DEPENDS "${folder}/${name}.bin"
        COMPILE_OPTIONS "-fno-lto;-fvisibility=hidden"
        SKIP_PRECOMPILE_HEADERS TRUE
        SKIP_UNITY_BUILD_INCLUSION TRUE
        SKIP_AUTOGEN TRUE)
endfunction()

# Adds a catalogue to the message table resource of a target. A module has one for all its catalogues, so the rule is made
# with the first of them.
function(_msglib_embed_as_resource target folder name)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "STATIC_LIBRARY")
        message(FATAL_ERROR "msglib_add_catalogue: ${target} is a static library, which has no resources on Windows; "
            "give the catalogue to the program or library that links it")
    endif()
    get_target_property(others ${target} MSGLIB_CATALOGUES)
    set_property(TARGET ${target} APPEND PROPERTY MSGLIB_CATALOGUES "${folder}/compiled/${name}.mc")
    set_property(TARGET ${target} APPEND PROPERTY MSGLIB_CATALOGUE_TABLES "${folder}/${name}.bin")
    if(others)
        return()
    endif()

    set(resource "${CMAKE_CURRENT_BINARY_DIR}/${target}.catalogues/${target}.rc")
    add_custom_command(
        OUTPUT "${resource}"
        COMMAND msglib::msgtable resource "${resource}" "$<TARGET_PROPERTY:${target},MSGLIB_CATALOGUES>"
        DEPENDS "$<TARGET_PROPERTY:${target},MSGLIB_CATALOGUE_TABLES>" msglib::msgtable
        COMMENT "Merging message tables of ${target}"
        COMMAND_EXPAND_LISTS
        VERBATIM)
    msglib_add_resource(${target} "${resource}")
endfunction()

# msglib_add_resource(<target> <file.rc>)
#
# Compiles a resource script into a module for Windows. As a source of the target, it would be given the options that the
# target has for C++.
function(msglib_add_resource target script)
    set(object "${script}.obj")
    add_custom_command(
        OUTPUT "${object}"
        COMMAND "${CMAKE_RC_COMPILER}" -O coff "${script}" "${object}"
        DEPENDS "${script}"
        COMMENT "Compiling resources of ${target}"
        VERBATIM)
    set_source_files_properties("${object}" TARGET_DIRECTORY ${target} PROPERTIES
        GENERATED TRUE EXTERNAL_OBJECT TRUE)
    target_sources(${target} PRIVATE "${object}")
endfunction()
