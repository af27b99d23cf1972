# As part of another project, this one shares its cache. Entries that find_package and CMake's own modules add between the two
# calls are removed again: a package that this project finds must not affect what the parent finds. Entries of languages,
# entries with our prefix and earlier entries are kept.

include_guard(GLOBAL)

macro(msglib_enter_parent_cache)
    get_cmake_property(msglib_parent_cache CACHE_VARIABLES)
endmacro()

function(msglib_leave_parent_cache)
    if(PROJECT_IS_TOP_LEVEL)
        return()
    endif()
    get_cmake_property(entries CACHE_VARIABLES)
    list(REMOVE_ITEM entries ${msglib_parent_cache})
    foreach(entry IN LISTS entries)
        if(NOT entry MATCHES "^(MSGLIB|msglib|CMAKE)_" OR entry MATCHES "^CMAKE_(INSTALL|PROJECT)_")
            unset(${entry} CACHE)
        endif()
    endforeach()
endfunction()
