#include "guard/paths.h"
#include "guard/version.h"
#include "i18n/localized.h"
#include "tray/notice.h"

std::wstring TrayHelpTitle() {
  return Localized(L"Nápověda: Stayhold", L"Help: Stayhold");
}

std::wstring TrayHelpText() {
  return Localized(
      L"Stayhold běží v oznamovací oblasti a vytváří ve Windows důvod blokování vypnutí, aby "
      L"plánovaný restart po Windows Update nemohl potichu zavřít vaši práci.\n\n"
      L"Nabídka v oznamovací oblasti obsahuje hlavní přepínač blokování. V Nastavení můžete mít "
      L"více profilů chování; aktivní profil určuje, která okna pro restart právě platí. Můžete "
      L"si tak ponechat varianty jako Pracovní týden, Víkend nebo Cestování.\n\n"
      L"Během oken pro restart, například pátek 13:00-17:00, se globální ochrana dočasně "
      L"neuplatňuje a restart je povolen. Pokud je blokování v nabídce oznamovací oblasti "
      L"vypnuté, aplikace restarty neblokuje bez ohledu na aktivní profil a jeho seznam oken.\n\n"
      L"Otevřít Windows Update otevře nastavení aktualizací. Spouštět s Windows a Zástupce na "
      L"ploše skutečně mění zástupce ve Windows. V Nastavení můžete vedle jazyka a vzhledu zvolit "
      L"také výkon rozhraní: Vyvážený, Max. detaily nebo Max. výkon. Vlastní vzhledy popisuje "
      L"soubor skins\\HOW_TO_CREATE_CUSTOM_SKIN.txt a Otevřít průvodce vzhledy ho přímo otevře. "
      L"Aplikace neblokuje odhlášení ani kritické vypnutí.",
      L"Stayhold lives in the notification area and creates a Windows shutdown block reason so a "
      L"planned Windows Update restart cannot silently close your work.\n\n"
      L"The tray menu has the main blocking switch. In Settings you can keep multiple behavior "
      L"profiles; the active profile decides which restart windows currently apply. That lets you "
      L"keep variants such as Work week, Weekend, or Travel.\n\n"
      L"During restart windows such as Friday 13:00-17:00, global protection is temporarily not "
      L"applied and restart is allowed. If blocking is turned off in the tray menu, the app does "
      L"not block restarts regardless of the active profile and its window list.\n\n"
      L"Open Windows Update opens update settings. Start with Windows and Desktop shortcut really "
      L"change Windows shortcuts. In Settings, next to language and skin, you can also choose UI "
      L"performance: Balanced, Max details, or Max performance. Custom skins are documented in "
      L"skins\\HOW_TO_CREATE_CUSTOM_SKIN.txt, and Open skin guide opens it directly. The app does "
      L"not block sign-out or critical shutdown.");
}

std::wstring AboutText() {
  return Localized(
             L"Stayhold chrání rozdělanou práci před tichými plánovanými restarty po "
             L"Windows Update.",
             L"Stayhold protects active work from silent planned restarts after Windows "
             L"Update.") +
         L"\n\n" + Localized(L"Verze: ", L"Version: ") + kStayholdVersion + L"\n" +
         Localized(L"Vydavatel: ", L"Publisher: ") + L"Marlowen\n" +
         Localized(L"Autorská práva: ", L"Copyright: ") + L"(C) 2026 Marlowen\n" +
         Localized(
             L"Uživatelské rozhraní: Tessel, vlastní sada ovládacích prvků se vzhledy, "
             L"vykreslovaná softwarově",
             L"User interface: Tessel, an in-house skinnable control toolkit drawn in "
             L"software") +
         L"\n" + Localized(L"Repozitář: KLM / quill-notebook", L"Repo: KLM / quill-notebook") +
         L"\n" + Localized(L"Konfigurace: ", L"Config: ") + ConfigFilePath() + L"\n" +
         Localized(L"Protokoly: ", L"Logs: ") + LogDirectory();
}
