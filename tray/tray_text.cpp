#include "tray/tray_text.h"

#include "guard/guard_text.h"
#include "i18n/localized.h"

std::wstring FormatUpdateTooltip(const UpdateManifest& manifest) {
  std::wstring text = Localized(L"K dispozici je aktualizace", L"Update available");
  if (!manifest.version.empty()) text += L" " + manifest.version;
  return text + L" - " +
         Localized(L"otevřete nabídku v oznamovací oblasti a zvolte Aktualizovat.",
                   L"open tray menu and choose Update.");
}

std::wstring TrayTooltipText(const GuardStatus& status,
                             const std::optional<UpdateManifest>& available) {
  return available ? FormatUpdateTooltip(*available) : FormatTrayTooltip(status);
}

std::wstring FitToField(const std::wstring& text, size_t capacity) {
  if (capacity == 0) return std::wstring();
  // Never leave half of a surrogate pair at the cut.
  size_t length = text.size() < capacity ? text.size() : capacity - 1;
  if (length < text.size() && length > 0 && text[length - 1] >= 0xD800 &&
      text[length - 1] <= 0xDBFF) {
    --length;
  }
  return text.substr(0, length);
}
