# What every target of the project is compiled with.

# The project's own includes start at the root: "device/ZELTOctrl.h" says the room.
include_directories(${PROJECT_SOURCE_DIR})

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion)
add_compile_definitions(QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# What makes a defect end the program instead of opening it. The sanitizers see more, and have their
# own ways to see it.
if(NOT ZELTO_SANITIZE)
    include(CheckCXXCompilerFlag)
    include(CheckPIESupported)
    check_pie_supported()
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
    add_compile_options(-fstack-protector-strong -fstack-clash-protection)
    # Of x86 alone.
    check_cxx_compiler_flag(-fcf-protection ZELTO_HAS_CF_PROTECTION)
    if(ZELTO_HAS_CF_PROTECTION)
        add_compile_options(-fcf-protection)
    endif()
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
    # It needs the optimiser; distributions give a lower level, which is taken back first.
    if(CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$")
        add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
    endif()
    add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)
endif()

if(ZELTO_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

if(ZELTO_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
    add_link_options(-fsanitize=fuzzer-no-link)
endif()

if(ZELTO_COVERAGE)
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()
