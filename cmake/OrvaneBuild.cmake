# What every target of this project is built with: the language level, the warnings, the cache.

find_package(Qt5 5.14 REQUIRED COMPONENTS Core Gui Widgets)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTOUIC_OPTIONS --no-autoconnection) # slots are connected by hand
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# A program that has this tree as a subdirectory chooses for itself.
if(ORVANE_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Debug, Release, RelWithDebInfo or MinSizeRel" FORCE)
endif()

find_program(ORVANE_CCACHE ccache)
if(ORVANE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${ORVANE_CCACHE})
endif()

# The warnings of the project's own targets. Qt's deprecations are warnings like any other.
add_library(orvane_warnings INTERFACE)
target_compile_definitions(orvane_warnings INTERFACE QT_DEPRECATED_WARNINGS)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(orvane_warnings INTERFACE -Wall -Wextra -Wpedantic)
    if(ORVANE_WARNINGS_AS_ERRORS)
        target_compile_options(orvane_warnings INTERFACE -Werror)
    endif()
endif()

if(ORVANE_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
