// The record of the setup's last failure and the texts a user gets for it: which step failed,
// what Windows Installer's exit code means, the lines of its log that matter, and where the
// logs are. The diagnostics exist in English and Czech.
#pragma once

#include <string>

struct SetupFailure {
  std::wstring phase;
  bool has_msi_exit = false;
  unsigned long msi_exit = 0;
  std::wstring msi_log_path;
  std::wstring msi_log_excerpt;
  std::wstring message_cs;
  std::wstring message_en;
};

// The process-wide record, cleared at the start of every operation.
SetupFailure& LastSetupFailure();
void ClearSetupFailure();

// Fills the record and logs "setup failure: <phase>: <English text>".
void ReportSetupFailure(const std::wstring& phase, const std::wstring& message_cs,
                        const std::wstring& message_en);

// Records a failed msiexec run; the excerpt comes from its log's bytes.
void RecordMsiFailure(const std::wstring& phase, unsigned long exit_code,
                      const std::wstring& log_path, const std::string& log_bytes);

// The first four lines mentioning "error " / "error:" / "return value 3" (any case), each cut to
// 220 characters; empty when the bytes are not valid UTF-8.
std::wstring MsiLogExcerpt(const std::string& log_bytes);

std::wstring FriendlyMsiExitText(unsigned long exit_code, bool czech);
std::wstring FriendlyPhaseText(const std::wstring& phase, bool czech);

// The message with the failure's details appended, in Czech when the interface speaks Czech.
std::wstring AppendSetupFailureDetails(std::wstring message);

// data_root\logs\msi-<phase>-<pid>-<ticks>.log; "operation" stands for an empty phase.
std::wstring MsiLogPath(const std::wstring& data_root, const std::wstring& phase,
                        unsigned long process_id, unsigned long long ticks);
