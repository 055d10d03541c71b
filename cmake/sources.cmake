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
  guard/wide_text.cpp
  guard/win_path.cpp
  i18n/language.cpp
  i18n/language_picker.cpp
  i18n/locale_table.cpp
  i18n/localized.cpp
  setup/install_paths.cpp
  ${CMAKE_BINARY_DIR}/generated/string_table_data.cpp
)

# The thin Windows layer beside them.
set(STAYHOLD_WIN32_SOURCES
  guard/file_system_win32.cpp
  guard/hidden_window_win32.cpp
  guard/local_time_win32.cpp
  guard/log_win32.cpp
  guard/profile_store_win32.cpp
  guard/machine_registry_win32.cpp
  i18n/locale_system_win32.cpp
  setup/setup_actions_win32.cpp
  tray/notice_win32.cpp
)
