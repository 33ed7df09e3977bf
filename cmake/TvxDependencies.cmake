# Every dependency comes from Debian 12's packages, found through CMake's own modules or pkg-config.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets Network OpenGL OpenGLWidgets Test LinguistTools)
find_package(Boost 1.74 REQUIRED COMPONENTS program_options filesystem)
find_package(OpenGL REQUIRED COMPONENTS OpenGL)
find_package(GLEW REQUIRED)
find_package(Freetype REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(FTGL REQUIRED IMPORTED_TARGET ftgl)
pkg_check_modules(POLYCLIPPING REQUIRED IMPORTED_TARGET polyclipping)
if(TVX_BENCHMARKS)
    find_package(benchmark REQUIRED)
endif()

if(NOT OPENGL_GLU_FOUND)
    message(FATAL_ERROR "GLU not found: install libglu1-mesa-dev (scripts/setup does)")
endif()

find_file(TVX_OPEN_SANS_TTF OpenSans-Regular.ttf
    PATHS /usr/share/fonts/truetype/open-sans /usr/share/fonts/truetype /usr/share/fonts
    NO_DEFAULT_PATH REQUIRED)

# The viewer looks for its font in its own folder.
file(COPY ${TVX_OPEN_SANS_TTF} DESTINATION ${TVX_BIN_DIR})
