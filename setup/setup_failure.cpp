#include "setup/setup_failure.h"

#include <cwctype>

#include "guard/log.h"
#include "guard/paths.h"
#include "base/wide_text.h"
#include "base/win_path.h"
#include "i18n/language.h"

SetupFailure& LastSetupFailure() {
  static SetupFailure failure;
  return failure;
}

void ClearSetupFailure() {
  LastSetupFailure() = SetupFailure();
}

void ReportSetupFailure(const std::wstring& phase, const std::wstring& message_cs,
                        const std::wstring& message_en) {
  SetupFailure& failure = LastSetupFailure();
  failure.phase = phase;
  failure.message_cs = message_cs;
  failure.message_en = message_en;
  AppendLog(L"setup failure: " + phase + L": " + message_en);
}

void RecordMsiFailure(const std::wstring& phase, unsigned long exit_code,
                      const std::wstring& log_path, const std::string& log_bytes) {
  ClearSetupFailure();
  SetupFailure& failure = LastSetupFailure();
  failure.phase = phase;
  failure.has_msi_exit = true;
  failure.msi_exit = exit_code;
  failure.msi_log_path = log_path;
  failure.msi_log_excerpt = MsiLogExcerpt(log_bytes);
  AppendLog(L"setup MSI failure phase=" + phase + L" exit=" + DecimalText(exit_code) + L" log=" +
            log_path);
}

std::wstring MsiLogExcerpt(const std::string& log_bytes) {
  std::wstring text;
  if (!WideFromUtf8Strict(log_bytes, text)) return std::wstring();
  std::wstring excerpt;
  int taken = 0;
  size_t start = 0;
  while (start <= text.size() && taken < 4) {
    size_t end = text.find(L'\n', start);
    if (end == std::wstring::npos) end = text.size();
    std::wstring line = text.substr(start, end - start);
    std::wstring lower = line;
    for (wchar_t& c : lower)
      c = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
    if (lower.find(L"error ") != std::wstring::npos ||
        lower.find(L"error:") != std::wstring::npos ||
        lower.find(L"return value 3") != std::wstring::npos) {
      if (line.size() > 220) line = line.substr(0, 217) + L"...";
      if (taken++ > 0) excerpt += L'\n';
      excerpt += line;
    }
    start = end + 1;
  }
  return excerpt;
}

std::wstring FriendlyMsiExitText(unsigned long exit_code, bool czech) {
  switch (exit_code) {
    case 5:
      return czech ? L"Windows odmítl přístup. Spusť setup jako správce nebo zvol složku, kam máš "
                     L"právo zapisovat."
                   : L"Windows denied access. Run setup as administrator or choose a folder you "
                     L"can write to.";
    case 408:
      return czech ? L"Instalace nedoběhla v časovém limitu. Zkontroluj, jestli nečeká UAC, jiný "
                     L"instalátor nebo antivirus."
                   : L"The install did not finish before the timeout. Check for UAC, another "
                     L"installer, or antivirus scanning.";
    case 1603:
      return czech ? L"MSI vrátil obecné selhání. Nejčastější příčiny jsou zamčený EXE, chybějící "
                     L"oprávnění do Program Files, čekající restart Windows nebo zásah "
                     L"bezpečnostního štítu."
                   : L"MSI returned a general failure. Common causes are a locked EXE, missing "
                     L"Program Files permission, a pending Windows restart, or security software "
                     L"intervention.";
    case 1618:
      return czech ? L"Už běží jiná instalace MSI. Počkej, až skončí Windows Installer nebo jiný "
                     L"setup, a spusť to znovu."
                   : L"Another MSI install is already running. Wait for Windows Installer or the "
                     L"other setup to finish, then retry.";
    case 1619:
      return czech ? L"MSI balíček nejde otevřít. Stáhni setup znovu; soubor mohl být poškozený "
                     L"nebo blokovaný bezpečnostním softwarem."
                   : L"The MSI package could not be opened. Download setup again; the file may be "
                     L"damaged or blocked by security software.";
    case 1638:
      return czech ? L"Windows Installer našel jinou verzi produktu. Setup se ji pokusil odebrat; "
                     L"pokud chyba zůstane, odinstaluj aplikaci ve Windows Nastavení a spusť "
                     L"setup znovu."
                   : L"Windows Installer found another product version. Setup tried to remove "
                     L"it; if this persists, uninstall the app from Windows Settings and run "
                     L"setup again.";
    default:
      return czech ? L"Podrobnější příčina je v MSI logu uvedeném níže."
                   : L"The detailed cause is in the MSI log shown below.";
  }
}

std::wstring FriendlyPhaseText(const std::wstring& phase, bool czech) {
  struct Name {
    const wchar_t* phase;
    const wchar_t* en;
    const wchar_t* cs;
  };
  static const Name kNames[] = {
      {L"install", L"application install through Windows Installer",
       L"instalace aplikace přes Windows Installer"},
      {L"repair", L"install repair through Windows Installer",
       L"oprava instalace přes Windows Installer"},
      {L"uninstall", L"application uninstall through Windows Installer",
       L"odinstalace aplikace přes Windows Installer"},
      {L"remove-existing", L"removing the previous MSI install",
       L"odebrání předchozí MSI instalace"},
      {L"extract-msi", L"extracting the embedded MSI package",
       L"rozbalení vestavěného MSI balíčku"},
      {L"desktop-shortcut", L"creating or removing the desktop shortcut",
       L"vytvoření nebo odebrání zástupce na ploše"},
      {L"startup-shortcut", L"configuring startup after sign-in",
       L"nastavení spouštění po přihlášení"},
  };
  if (phase.empty()) return czech ? L"neznámá fáze" : L"unknown step";
  for (const Name& name : kNames) {
    if (phase == name.phase) return czech ? name.cs : name.en;
  }
  return phase;
}

std::wstring AppendSetupFailureDetails(std::wstring message) {
  const bool czech = PrimarySubtag(EffectiveLanguageTag()) == L"cs";
  const SetupFailure& failure = LastSetupFailure();
  const std::wstring app_log_label = czech ? L"Log aplikace: " : L"Application log: ";
  if (failure.phase.empty() && failure.message_cs.empty() && !failure.has_msi_exit) {
    return message + L"\n\n" + app_log_label + LogFilePath();
  }
  message += (czech ? L"\n\nCo selhalo: " : L"\n\nFailed step: ") +
             FriendlyPhaseText(failure.phase, czech);
  if (failure.has_msi_exit) {
    message += (czech ? L"\nMSI kód: " : L"\nMSI code: ") + DecimalText(failure.msi_exit) + L"\n" +
               FriendlyMsiExitText(failure.msi_exit, czech);
  } else {
    message += L"\n" + (czech ? failure.message_cs : failure.message_en);
  }
  if (!failure.msi_log_excerpt.empty()) {
    message +=
        (czech ? L"\n\nŘádky z MSI logu:\n" : L"\n\nMSI log excerpt:\n") + failure.msi_log_excerpt;
  }
  if (!failure.msi_log_path.empty()) message += L"\n\nMSI log: " + failure.msi_log_path;
  return message + L"\n" + app_log_label + LogFilePath();
}

std::wstring MsiLogPath(const std::wstring& data_root, const std::wstring& phase,
                        unsigned long process_id, unsigned long long ticks) {
  return JoinPath(JoinPath(data_root, L"logs"), L"msi-" + (phase.empty() ? L"operation" : phase) +
                                                    L"-" + DecimalText(process_id) + L"-" +
                                                    DecimalText(ticks) + L".log");
}
