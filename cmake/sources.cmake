# The layers, bottom first: base <- tessel (style <- paint <- skin, core <- controls) <- the
# application (i18n <- guard <- update <- tray <- settings <- setup <- app). Portable code has no
# <windows.h>; each folder's `*_win32.cpp` files join it in the Windows build only.
include(${CMAKE_CURRENT_LIST_DIR}/layers.cmake)

add_library(stayhold_system_libraries INTERFACE)
if(WIN32)
  target_link_libraries(stayhold_system_libraries INTERFACE shell32 ole32 oleaut32 propsys shlwapi
    advapi32 winhttp msi user32 gdi32 msimg32 windowscodecs uuid)
endif()

stayhold_layer(stayhold_base FOLDER base)

# The toolkit: nothing of Stayhold in it.
stayhold_layer(tessel_style FOLDER tessel/style BELOW stayhold_base)
# The native build reads test images as PAM files; Windows decodes with its imaging component.
stayhold_layer(tessel_paint FOLDER tessel/paint BELOW tessel_style
  NATIVE_ONLY tessel/paint/image_file_pam.cpp)
stayhold_layer(tessel_skin FOLDER tessel/skin BELOW tessel_paint)
stayhold_layer(tessel_core FOLDER tessel/core BELOW tessel_paint)
stayhold_layer(tessel_controls FOLDER tessel/controls BELOW tessel_core tessel_skin)
add_library(tessel INTERFACE)
target_link_libraries(tessel INTERFACE tessel_controls)
get_target_property(tessel_folders tessel_controls STAYHOLD_VISIBLE_FOLDERS)
set_target_properties(tessel PROPERTIES STAYHOLD_VISIBLE_FOLDERS "${tessel_folders}")

# The material layers' painters, each built once per instruction set. Their per-pixel loops are
# written to be vectorized: without errno and trap semantics the compiler can run sqrt and the
# selects of several pixels at once.
set(STAYHOLD_MATERIAL_LAYERS_AVX2
  tessel/paint/material_noise_layer_avx2.cpp
  tessel/paint/material_overlay_avx2.cpp
  tessel/paint/material_spatial_shading_avx2.cpp)
set_source_files_properties(
  tessel/paint/material_noise_layer.cpp
  tessel/paint/material_overlay.cpp
  tessel/paint/material_spatial_shading.cpp
  ${STAYHOLD_MATERIAL_LAYERS_AVX2}
  TARGET_DIRECTORY tessel_paint
  PROPERTIES COMPILE_OPTIONS
  "-fno-math-errno;-fno-trapping-math;$<$<CXX_COMPILER_ID:GNU>:-fvect-cost-model=dynamic>")
# 64-bit Windows keeps the stack aligned to 16 bytes only: 32-byte vector moves must not assume
# more.
if(WIN32)
  set_property(SOURCE ${STAYHOLD_MATERIAL_LAYERS_AVX2} TARGET_DIRECTORY tessel_paint APPEND
    PROPERTY COMPILE_OPTIONS "-Wa,-muse-unaligned-vector-move")
endif()

# The application. The string table is data: i18n/strings/*.txt turned into C++ at build time;
# the generator stops the build when a file has a missing, extra or empty row.
file(GLOB STAYHOLD_STRING_FILES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/i18n/strings/*.txt)
add_custom_command(
  OUTPUT ${CMAKE_BINARY_DIR}/generated/string_table_data.cpp
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/generated
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/i18n/make_string_table.py
          ${CMAKE_SOURCE_DIR}/i18n/strings ${CMAKE_BINARY_DIR}/generated/string_table_data.cpp
  DEPENDS ${STAYHOLD_STRING_FILES} ${CMAKE_SOURCE_DIR}/i18n/make_string_table.py
  COMMENT "Generating the string table")

stayhold_layer(app_i18n FOLDER i18n BELOW tessel)
target_sources(app_i18n PRIVATE ${CMAKE_BINARY_DIR}/generated/string_table_data.cpp)
stayhold_layer(app_guard FOLDER guard BELOW app_i18n)
stayhold_layer(app_update FOLDER update BELOW app_guard)
# The addresses of the update manifest and the download page, configured at build time.
target_include_directories(app_update PUBLIC ${CMAKE_BINARY_DIR}/generated)
stayhold_layer(app_tray FOLDER tray BELOW app_update)
stayhold_layer(app_settings FOLDER settings BELOW app_tray)
# Each executable brings its own payload table.
stayhold_layer(app_setup FOLDER setup BELOW app_settings
  EXCLUDE setup/payload_table_app.cpp setup/payload_table_setup.cpp)
# The top: the entry routine's helpers and the hidden window, the hub that calls down.
stayhold_layer(app_hub FOLDER app BELOW app_setup EXCLUDE app/main_win32.cpp)
add_library(stayhold_application INTERFACE)
target_link_libraries(stayhold_application INTERFACE app_hub)
get_target_property(STAYHOLD_ALL_FOLDERS app_hub STAYHOLD_VISIBLE_FOLDERS)
