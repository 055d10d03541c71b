#include "guard/guard_text.h"

#include "guard/guard_status.h"
#include "base/wide_text.h"
#include "i18n/language.h"
#include "i18n/locale_system.h"
#include "i18n/localized.h"

std::wstring ProfileDisplayName(const BehaviorProfile& profile, int index) {
  std::wstring name = TrimWhiteSpace(profile.name);
  if (!name.empty()) return name;
  const long long number = (index < 0 ? 0LL : static_cast<long long>(index)) + 1;
  return Localized(L"Profil", L"Profile") + L" " + std::to_wstring(number);
}

std::wstring FormatMinutes(int minutes) {
  if (minutes < 0) minutes = 0;
  if (minutes > 1439) minutes = 1439;
  const int hours = minutes / 60;
  const int rest = minutes % 60;
  const wchar_t text[] = {
      static_cast<wchar_t>(L'0' + hours / 10), static_cast<wchar_t>(L'0' + hours % 10), L':',
      static_cast<wchar_t>(L'0' + rest / 10),  static_cast<wchar_t>(L'0' + rest % 10),  L'\0'};
  return text;
}

std::wstring DayName(int day) {
  if (day < 0) day = 0;
  if (day > 6) day = 6;
  const std::wstring tag = EffectiveLanguageTag();
  std::wstring name;
  // Monday is LOCALE_SDAYNAME1 (42) through Sunday LOCALE_SDAYNAME7 (48).
  if (LocaleInfoText(tag, kLocaleDayName1 + static_cast<uint32_t>(day), name) && !name.empty()) {
    return name;
  }
  return tag;
}

std::wstring FormatWindowLabel(const RestartWindow& window) {
  std::wstring label = DayName(window.day) + L" " + FormatMinutes(window.from_minute) + L"-" +
                       FormatMinutes(window.to_minute);
  if (window.to_minute <= window.from_minute) label += Localized(L" (přes noc)", L" (overnight)");
  return label;
}

std::wstring FormatGuardStatus(const GuardStatus& status) {
  if (!status.guard_enabled) {
    return Localized(L"Stav: ochrana je vypnutá v nabídce oznamovací oblasti",
                     L"Status: protection is turned off in the tray menu");
  }
  if (status.in_restart_window) {
    std::wstring text = Localized(L"Stav: je aktivní plánované okno pro restart",
                                  L"Status: a scheduled restart window is active");
    if (!status.window_label.empty()) text += L" (" + status.window_label + L")";
    return text;
  }
  return Localized(L"Stav: blokuje plánované restarty", L"Status: blocking planned restarts");
}

std::wstring FormatTrayTooltip(const GuardStatus& status) {
  if (!status.guard_enabled) {
    return Localized(L"Stayhold: ochrana je vypnutá", L"Stayhold: guard is off");
  }
  if (status.in_restart_window) {
    std::wstring text = Localized(L"Stayhold: plánované povolení", L"Stayhold: scheduled allow");
    if (!status.window_label.empty()) text += L" - " + status.window_label;
    return text;
  }
  return Localized(L"Stayhold: blokuje plánované restarty", L"Stayhold: blocking planned restarts");
}
