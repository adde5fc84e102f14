# What comes from outside and is not a plain package: the workbook library and the chart scripts.
# tools/setup puts both into the cache folder.

if(DEFINED ENV{SUBJECTPAGE_CACHE})
    set(SUBJECTPAGE_CACHE "$ENV{SUBJECTPAGE_CACHE}")
elseif(DEFINED ENV{XDG_CACHE_HOME})
    set(SUBJECTPAGE_CACHE "$ENV{XDG_CACHE_HOME}/subjectpage")
else()
    set(SUBJECTPAGE_CACHE "$ENV{HOME}/.cache/subjectpage")
endif()

set(QT_VERSION_MAJOR 5) # the workbook library asks for it
find_package(QXlsx CONFIG QUIET HINTS ${SUBJECTPAGE_CACHE}/qxlsx)
if(NOT TARGET QXlsx::QXlsx)
    find_package(QXlsxQt5 CONFIG QUIET)
endif()
if(NOT TARGET QXlsx::QXlsx)
    message(FATAL_ERROR "The workbook library QXlsx is missing: run tools/setup")
endif()

find_package(PkgConfig REQUIRED)
pkg_check_modules(MINIZIP REQUIRED IMPORTED_TARGET GLOBAL minizip)

set(SUBJECTPAGE_ECHARTS_DIR ${SUBJECTPAGE_CACHE}/echarts)
if(NOT EXISTS ${SUBJECTPAGE_ECHARTS_DIR}/echarts.min.js OR NOT EXISTS ${SUBJECTPAGE_ECHARTS_DIR}/shine.js)
    message(FATAL_ERROR "The chart scripts are missing from ${SUBJECTPAGE_ECHARTS_DIR}: run tools/setup")
endif()
