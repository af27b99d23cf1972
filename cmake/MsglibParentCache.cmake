# As part of another project, this one shares its cache. What find_package and CMake's own modules add there between the two
# calls is removed again: a package that was found for us must not decide what the parent finds. Entries of languages stay,
# and so does what has our prefix or was there before.

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
