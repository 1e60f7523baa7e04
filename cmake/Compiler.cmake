# How every target is compiled: C++20, warnings, hardening, optional sanitizers.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)

add_library(velvane_options INTERFACE)
target_compile_definitions(velvane_options INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_USE_QSTRINGBUILDER
    VELVANE_VERSION="${PROJECT_VERSION}")
target_compile_options(velvane_options INTERFACE
    # Designated initialisers leave fields at their defaults on purpose.
    -Wall -Wextra -Wno-missing-field-initializers -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
    $<$<BOOL:${VELVANE_WARNINGS_ARE_ERRORS}>:-Werror>
    -fstack-protector-strong)
if(VELVANE_SANITIZE)
    target_compile_options(velvane_options INTERFACE
        -fsanitize=${VELVANE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(velvane_options INTERFACE -fsanitize=${VELVANE_SANITIZE})
else()
    target_compile_definitions(velvane_options INTERFACE $<$<CONFIG:Release>:_FORTIFY_SOURCE=2>)
    target_link_options(velvane_options INTERFACE -pie -Wl,-z,relro,-z,now)
endif()

