# SPDX-License-Identifier: MIT
# Translation catalogues: our own, made from .ts files, and the ones that Qt brings along.
#
# Both programs and files are looked for by hand: Qt's CMake module for translations is missing
# from many cross-compiling kits, and a cross build takes them from the building machine anyway.

if(NOT CMAKE_CROSSCOMPILING AND TARGET Qt5::qmake)
    get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
    foreach(variable QT_HOST_BINS QT_INSTALL_TRANSLATIONS)
        execute_process(COMMAND ${qmake} -query ${variable} OUTPUT_VARIABLE ${variable}
                        OUTPUT_STRIP_TRAILING_WHITESPACE)
    endforeach()
endif()

find_program(LRELEASE NAMES lrelease-qt5 lrelease
             HINTS ${QT_HOST_BINS} /usr/lib/qt5/bin
             DOC "Qt's compiler of translation catalogues")
if(NOT LRELEASE)
    message(FATAL_ERROR "lrelease was not found. It is part of Qt's tools "
                        "(Debian: qttools5-dev-tools); set LRELEASE to its path.")
endif()

find_path(QT_TRANSLATIONS qtbase_ru.qm
          HINTS ${QT_INSTALL_TRANSLATIONS} /usr/share/qt5/translations
          DOC "The folder with Qt's own catalogues (qtbase_ru.qm, ...)"
          NO_CMAKE_FIND_ROOT_PATH)
if(NOT QT_TRANSLATIONS)
    message(FATAL_ERROR "Qt's own translation catalogues were not found (Debian: "
                        "qttranslations5-l10n); set QT_TRANSLATIONS to the folder of qtbase_ru.qm.")
endif()

# thermadesk_release_catalogue(SOURCE.ts TARGET.qm): built whenever the .ts changes.
function(thermadesk_release_catalogue source target)
    add_custom_command(
        OUTPUT ${target}
        COMMAND ${LRELEASE} -silent ${CMAKE_CURRENT_SOURCE_DIR}/${source} -qm ${target}
        DEPENDS ${source}
        COMMENT "Compiling ${source}"
        VERBATIM)
endfunction()

# thermadesk_take_qt_catalogue(NAME.qm TARGET.qm): a copy, taken when configuring.
function(thermadesk_take_qt_catalogue name target)
    if(NOT EXISTS ${QT_TRANSLATIONS}/${name})
        message(FATAL_ERROR "${name} is missing in ${QT_TRANSLATIONS}; set QT_TRANSLATIONS to a "
                            "folder with all of Qt's own catalogues.")
    endif()
    configure_file(${QT_TRANSLATIONS}/${name} ${target} COPYONLY)
endfunction()
