# The portable sources: no <windows.h>, built natively and for Windows alike.
set(STAYHOLD_PORTABLE_SOURCES
  guard/app_config.cpp
  guard/config_store.cpp
  guard/guard_status.cpp
  guard/guard_text.cpp
  guard/install_folder.cpp
  guard/log_line.cpp
  guard/paths.cpp
  guard/update_policy.cpp
  guard/startup_options.cpp
  base/wide_text.cpp
  base/win_path.cpp
  i18n/language.cpp
  i18n/language_picker.cpp
  i18n/locale_table.cpp
  i18n/localized.cpp
  setup/install_paths.cpp
  setup/payload.cpp
  setup/quote_argument.cpp
  setup/registration.cpp
  setup/setup_skins.cpp
  setup/setup_failure.cpp
  tray/notice_text.cpp
  tray/tray_text.cpp
  update/manifest_reader.cpp
  update/update_check.cpp
  update/update_install.cpp
  update/update_state.cpp
  update/version_compare.cpp
  ${CMAKE_BINARY_DIR}/generated/string_table_data.cpp
  # toolkit
  tessel/core/control.cpp
  tessel/core/panel.cpp
  tessel/style/rect_extents.cpp
  tessel/core/dialog_window.cpp
  tessel/core/system_move.cpp
  tessel/core/tooltip_path.cpp
  tessel/core/window.cpp
  tessel/core/window_frame.cpp
  tessel/controls/bitmap_button.cpp
  tessel/controls/card.cpp
  tessel/controls/check_box.cpp
  tessel/controls/designed_popup.cpp
  tessel/controls/inline_markup.cpp
  tessel/controls/label.cpp
  tessel/controls/progress_bar.cpp
  tessel/controls/status_chip.cpp
  tessel/controls/surface_bands.cpp
  tessel/controls/text_fit.cpp
  tessel/controls/themed_button.cpp
  tessel/controls/themed_panel.cpp
  tessel/controls/chrome_title_bar.cpp
  tessel/paint/alpha_bands.cpp
  tessel/paint/bitmap_surface.cpp
  tessel/paint/chrome_glyphs.cpp
  tessel/style/color.cpp
  tessel/style/image.cpp
  tessel/paint/image_file_common.cpp
  tessel/paint/image_canvas.cpp
  tessel/paint/pixel_blend.cpp
  tessel/paint/layer_cache.cpp
  tessel/paint/layer_runs.cpp
  tessel/paint/line_raster.cpp
  tessel/paint/text_ellipsis.cpp
  tessel/paint/text_wrap.cpp
  tessel/style/material_kind.cpp
  tessel/paint/material_layers.cpp
  tessel/paint/material_layers_avx2.cpp
  tessel/paint/material_noise.cpp
  tessel/paint/material_shading.cpp
  tessel/paint/private_fonts.cpp
  tessel/paint/sample_space.cpp
  tessel/paint/shape_fill.cpp
  tessel/paint/shape_geometry.cpp
  tessel/skin/skin_words.cpp
  tessel/paint/stand_in_font.cpp
  tessel/paint/surface_outline.cpp
  tessel/paint/surface_painter.cpp
  tessel/paint/ui_performance.cpp
  tessel/paint/gradient.cpp
  tessel/skin/app_skin_catalogue.cpp
  tessel/skin/json_access.cpp
  tessel/skin/json_value.cpp
  tessel/skin/material_preset.cpp
  tessel/skin/property_table.cpp
  tessel/skin/skin_catalogue.cpp
  tessel/skin/skin_definition.cpp
  tessel/skin/style_builders.cpp
  tessel/skin/style_reader.cpp
  tessel/skin/style_sheet.cpp
  tessel/skin/surface_builder.cpp
  tessel/skin/surface_parser.cpp
  tessel/skin/theme.cpp
)

# The portable library's one platform seam, image decoding: one of these joins it per build.
set(STAYHOLD_PORTABLE_NATIVE_SOURCES
  tessel/paint/image_file.cpp
)
set(STAYHOLD_PORTABLE_WIN32_SOURCES
  tessel/paint/image_file_win32.cpp
)

# The thin Windows layer beside them.
set(STAYHOLD_WIN32_SOURCES
  tessel/paint/gdi_canvas_win32.cpp
  tessel/paint/private_fonts_win32.cpp
  tessel/paint/icon_image_win32.cpp
  tessel/core/window_win32.cpp
  tessel/core/dialog_window_win32.cpp
  guard/app_icon_win32.cpp
  base/file_system_win32.cpp
  guard/hidden_window_win32.cpp
  guard/install_folder_win32.cpp
  guard/local_time_win32.cpp
  guard/log_win32.cpp
  guard/profile_store_win32.cpp
  guard/machine_registry_win32.cpp
  i18n/locale_system_win32.cpp
  settings/settings_window_win32.cpp
  setup/msi_driver_win32.cpp
  setup/payload_win32.cpp
  setup/registration_win32.cpp
  setup/setup_actions_win32.cpp
  setup/shortcuts_win32.cpp
  tray/notice_win32.cpp
  tray/tray_icon_win32.cpp
  update/http_get_win32.cpp
  update/update_commands_win32.cpp
  update/update_fetch_win32.cpp
)

# The material layers' per-pixel loops are written to be vectorized: without errno and trap
# semantics the compiler can run sqrt and the selects of several pixels at once.
set_source_files_properties(tessel/paint/material_layers.cpp tessel/paint/material_layers_avx2.cpp
  PROPERTIES
  COMPILE_OPTIONS "-fno-math-errno;-fno-trapping-math;$<$<CXX_COMPILER_ID:GNU>:-fvect-cost-model=dynamic>")
# 64-bit Windows keeps the stack aligned to 16 bytes only: 32-byte vector moves must not assume
# more.
if(WIN32)
  set_property(SOURCE tessel/paint/material_layers_avx2.cpp APPEND PROPERTY
    COMPILE_OPTIONS "-Wa,-muse-unaligned-vector-move")
endif()
