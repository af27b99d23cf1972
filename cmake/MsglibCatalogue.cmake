# Message catalogues: from a message text file to a table inside a module.

include_guard(GLOBAL)

# msglib_add_catalogue(<target> <file.mc>)
#
# Embeds the message tables of a message text file (UTF-8) in an executable, a library of any kind or a module. The
# target's sources can then include <Name>.h, where Name is the file's name without ".mc": it has the identifiers and
# `void register<Name>()` (in upper camel case), which registers every facility that the file uses.
#
# The target links msglib::msglib itself. It may be given any number of files, and a file to any number of targets. In a
# static library, the table comes along with the registration function: a program that never calls it has none.
function(msglib_add_catalogue target file)
    if(NOT TARGET ${target})
        message(FATAL_ERROR "msglib_add_catalogue: no such target: ${target}")
    endif()
    cmake_path(ABSOLUTE_PATH file NORMALIZE)
    if(NOT EXISTS "${file}")
        message(FATAL_ERROR "msglib_add_catalogue: no such file: ${file}")
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
    _msglib_embed_in_elf(${target} "${folder}" "${name}")
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
