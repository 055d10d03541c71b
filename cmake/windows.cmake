# The Windows executables. Both are built from the same sources; the setup differs only in
# STAYHOLD_SETUP_BUILD.
add_compile_definitions(UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX)

set(STAYHOLD_ICON_FILE ${CMAKE_BINARY_DIR}/generated/stayhold.ico)
add_custom_command(
  OUTPUT ${STAYHOLD_ICON_FILE}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/generated
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/assets/icon/make_icon.py ${STAYHOLD_ICON_FILE}
          ${CMAKE_BINARY_DIR}/generated/stayhold_icon_preview.png
  DEPENDS ${CMAKE_SOURCE_DIR}/assets/icon/make_icon.py
  COMMENT "Drawing the application icon")
add_custom_target(stayhold_icon DEPENDS ${STAYHOLD_ICON_FILE})

set(STAYHOLD_MANIFEST_FILE ${CMAKE_SOURCE_DIR}/app/resources/app.manifest)

function(stayhold_executable target exe_base description)
  set(STAYHOLD_EXE_BASE ${exe_base})
  set(STAYHOLD_EXE_NAME ${exe_base}.exe)
  set(STAYHOLD_FILE_DESCRIPTION ${description})
  set(rc ${CMAKE_BINARY_DIR}/generated/${exe_base}.rc)
  configure_file(${CMAKE_SOURCE_DIR}/app/resources/stayhold.rc.in ${rc} @ONLY)
  set_source_files_properties(${rc} PROPERTIES
    OBJECT_DEPENDS "${STAYHOLD_ICON_FILE};${STAYHOLD_MANIFEST_FILE};${CMAKE_SOURCE_DIR}/guard/version.h")
  add_executable(${target} WIN32 app/main_win32.cpp ${rc})
  add_dependencies(${target} stayhold_icon)
  set_target_properties(${target} PROPERTIES OUTPUT_NAME ${exe_base})
  stayhold_include_root(${target} PRIVATE ${STAYHOLD_ALL_FOLDERS})
  target_link_options(${target} PRIVATE -municode $<$<CONFIG:Release>:-s>)
  target_link_libraries(${target} PRIVATE stayhold_application)
endfunction()

stayhold_executable(stayhold_app Stayhold "Stayhold restart guard")
target_sources(stayhold_app PRIVATE setup/payload_table_app.cpp)

# The Windows Installer package of the application, embedded in the setup as its payload.
set(STAYHOLD_MSI ${CMAKE_BINARY_DIR}/package/Stayhold.msi)
file(GLOB STAYHOLD_ASSET_IMAGES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/assets/*.png)
set(STAYHOLD_SKIN_FILES
  ${CMAKE_SOURCE_DIR}/skins/00-tessel-default-skins.json
  ${CMAKE_SOURCE_DIR}/skins/01-tessel-black-gemstone-skins.json
  ${CMAKE_SOURCE_DIR}/skins/02-tessel-material-gallery-skins.json
  ${CMAKE_SOURCE_DIR}/skins/stayhold-tactical-3d.json)
add_custom_command(
  OUTPUT ${STAYHOLD_MSI}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/package
  COMMAND ${CMAKE_SOURCE_DIR}/package/build_msi.sh ${STAYHOLD_MSI} $<TARGET_FILE:stayhold_app>
          ${STAYHOLD_ICON_FILE} ${PROJECT_VERSION}
  WORKING_DIRECTORY ${CMAKE_BINARY_DIR}
  DEPENDS stayhold_app ${STAYHOLD_ICON_FILE} ${CMAKE_SOURCE_DIR}/package/stayhold.wxs
          ${CMAKE_SOURCE_DIR}/package/build_msi.sh ${STAYHOLD_ASSET_IMAGES} ${STAYHOLD_SKIN_FILES}
          ${CMAKE_SOURCE_DIR}/skins/HOW_TO_CREATE_CUSTOM_SKIN.txt
  COMMENT "Building the Windows Installer package")
add_custom_target(stayhold_msi DEPENDS ${STAYHOLD_MSI})

set(STAYHOLD_PAYLOAD_RC ${CMAKE_BINARY_DIR}/generated/payload.rc)
# The setup also carries the skin files, so that its own dialogs are skinned before anything is
# installed; resource ids follow the order of the payload table.
file(WRITE ${STAYHOLD_PAYLOAD_RC} "3001 SHDPAYLOAD \"${STAYHOLD_MSI}\"\n")
set(resource_id 3002)
foreach(skin_file ${STAYHOLD_SKIN_FILES})
  file(APPEND ${STAYHOLD_PAYLOAD_RC} "${resource_id} SHDPAYLOAD \"${skin_file}\"\n")
  math(EXPR resource_id "${resource_id} + 1")
endforeach()
set_source_files_properties(${STAYHOLD_PAYLOAD_RC} PROPERTIES OBJECT_DEPENDS
  "${STAYHOLD_MSI};${STAYHOLD_SKIN_FILES}")

stayhold_executable(stayhold_setup StayholdSetup "Stayhold Setup")
target_sources(stayhold_setup PRIVATE ${STAYHOLD_PAYLOAD_RC} setup/payload_table_setup.cpp)
add_dependencies(stayhold_setup stayhold_msi)
target_compile_definitions(stayhold_setup PRIVATE STAYHOLD_SETUP_BUILD)
