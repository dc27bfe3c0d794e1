# cmake --install build/windows --prefix DIR  gives a host all that it needs:
#   bin/NemPdfUI64.dll   lib/libNemPdfUI64.dll.a   lib/cmake/NemPdfUI
#   include/NemPdfUI.h, for C++20 include/NemPdfUI.hpp and what that includes
# With DIR in CMAKE_PREFIX_PATH its project says find_package(NemPdfUI) and links NemPdfUI::NemPdfUI.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/NemPdfUI)

install(TARGETS NemPdfUI EXPORT NemPdfUITargets
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES ${PROJECT_SOURCE_DIR}/include/NemPdfUI.h ${PROJECT_SOURCE_DIR}/include/NemPdfUI.hpp
              ${PROJECT_SOURCE_DIR}/include/NemPdfUISettings.hpp DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT NemPdfUITargets NAMESPACE NemPdfUI:: FILE NemPdfUIConfig.cmake DESTINATION ${package_directory})

write_basic_package_version_file(${PROJECT_BINARY_DIR}/NemPdfUIConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/NemPdfUIConfigVersion.cmake DESTINATION ${package_directory})
