#include "update/manifest_reader.h"

#include <algorithm>

#include "guard/version.h"
#include "i18n/language.h"
#include "update/version_compare.h"

namespace {

// Index just past the string that starts with the quote at `quote`, or npos when unterminated.
size_t SkipString(const std::wstring& text, size_t quote) {
  for (size_t i = quote + 1; i < text.size(); ++i) {
    if (text[i] == L'\\') {
      ++i;
    } else if (text[i] == L'"') {
      return i + 1;
    }
  }
  return std::wstring::npos;
}

// Position behind `"key"` and the `:` that follows it, or npos.
size_t ValueStart(const std::wstring& text, const std::wstring& key) {
  const size_t at = text.find(L"\"" + key + L"\"");
  if (at == std::wstring::npos) return at;
  const size_t colon = text.find(L':', at + key.size() + 2);
  return colon == std::wstring::npos ? colon : colon + 1;
}

}  // namespace

std::optional<std::wstring> ReadManifestString(const std::wstring& text, const std::wstring& key) {
  const size_t start = ValueStart(text, key);
  if (start == std::wstring::npos) return std::nullopt;
  const size_t quote = text.find(L'"', start);
  if (quote == std::wstring::npos) return std::nullopt;
  std::wstring value;
  for (size_t i = quote + 1; i < text.size(); ++i) {
    const wchar_t c = text[i];
    if (c == L'"') return value;
    if (c != L'\\') {
      value += c;
      continue;
    }
    if (++i >= text.size()) break;
    switch (text[i]) {
      case L'n':
        value += L'\n';
        break;
      case L'r':
        value += L'\r';
        break;
      case L't':
        value += L'\t';
        break;
      default:
        value += text[i];
        break;  // \" \\ \/ and even \u stand for themselves
    }
  }
  return std::nullopt;
}

std::optional<std::wstring> ReadManifestArray(const std::wstring& text, const std::wstring& key) {
  const size_t start = ValueStart(text, key);
  if (start == std::wstring::npos) return std::nullopt;
  const size_t open = text.find(L'[', start);
  if (open == std::wstring::npos) return std::nullopt;
  int depth = 0;
  for (size_t i = open; i < text.size(); ++i) {
    if (text[i] == L'"') {
      i = SkipString(text, i);
      if (i == std::wstring::npos) return std::nullopt;
      --i;
    } else if (text[i] == L'[') {
      ++depth;
    } else if (text[i] == L']' && --depth == 0) {
      return text.substr(open, i - open + 1);
    }
  }
  return std::nullopt;
}

std::vector<std::wstring> SplitManifestObjects(const std::wstring& array) {
  std::vector<std::wstring> objects;
  int depth = 0;
  size_t begin = 0;
  for (size_t i = 0; i < array.size(); ++i) {
    if (array[i] == L'"') {
      const size_t end = SkipString(array, i);
      if (end == std::wstring::npos) break;
      i = end - 1;
    } else if (array[i] == L'{') {
      if (depth++ == 0) begin = i;
    } else if (array[i] == L'}' && depth > 0 && --depth == 0) {
      objects.push_back(array.substr(begin, i - begin + 1));
    }
  }
  return objects;
}

std::wstring LocalizedChangeNote(const std::wstring& changes, const std::wstring& changes_cs,
                                 const std::wstring& changes_en) {
  const std::wstring language = PrimarySubtag(EffectiveLanguageTag());
  if (language == L"cs" && !changes_cs.empty()) return changes_cs;
  if (language == L"en" && !changes_en.empty()) return changes_en;
  if (!changes.empty()) return changes;
  if (!changes_en.empty()) return changes_en;
  return changes_cs;
}

UpdateManifest ParseUpdateManifest(const std::wstring& text,
                                   const std::wstring& default_release_url) {
  const auto field = [&](const wchar_t* key) {
    return ReadManifestString(text, key).value_or(L"");
  };
  UpdateManifest manifest;
  manifest.version = field(L"version");
  manifest.release_url = ReadManifestString(text, L"release_url").value_or(default_release_url);
  manifest.setup_url = field(L"setup_url");
  manifest.sha256 = field(L"sha256");
  manifest.changes = field(L"changes");
  manifest.changes_cs = field(L"changes_cs");
  manifest.changes_en = field(L"changes_en");

  std::optional<std::wstring> array = ReadManifestArray(text, L"history");
  if (!array) array = ReadManifestArray(text, L"versions");
  if (array) {
    for (const std::wstring& object : SplitManifestObjects(*array)) {
      UpdateHistoryEntry entry;
      entry.version = ReadManifestString(object, L"version").value_or(L"");
      if (entry.version.empty()) continue;
      entry.changes = ReadManifestString(object, L"changes").value_or(L"");
      entry.changes_cs = ReadManifestString(object, L"changes_cs").value_or(L"");
      entry.changes_en = ReadManifestString(object, L"changes_en").value_or(L"");
      manifest.history.push_back(std::move(entry));
    }
  }
  if (!manifest.version.empty()) {
    const bool listed = std::any_of(manifest.history.begin(), manifest.history.end(),
                                    [&](const UpdateHistoryEntry& e) {
                                      return CompareVersions(e.version, manifest.version) == 0;
                                    });
    if (!listed &&
        !LocalizedChangeNote(manifest.changes, manifest.changes_cs, manifest.changes_en).empty()) {
      manifest.history.push_back(UpdateHistoryEntry{manifest.version, manifest.changes,
                                                    manifest.changes_cs, manifest.changes_en});
    }
  }
  return manifest;
}

std::wstring BuildChangeNotesSinceInstalled(const UpdateManifest& manifest) {
  std::vector<const UpdateHistoryEntry*> kept;
  for (const UpdateHistoryEntry& entry : manifest.history) {
    if (entry.version.empty() || CompareVersions(entry.version, kStayholdVersion) <= 0) continue;
    if (!manifest.version.empty() && CompareVersions(entry.version, manifest.version) > 0) continue;
    if (LocalizedChangeNote(entry.changes, entry.changes_cs, entry.changes_en).empty()) continue;
    kept.push_back(&entry);
  }
  if (kept.empty()) {
    return LocalizedChangeNote(manifest.changes, manifest.changes_cs, manifest.changes_en);
  }
  std::stable_sort(kept.begin(), kept.end(), [](const auto* a, const auto* b) {
    return CompareVersions(a->version, b->version) > 0;
  });
  std::wstring notes;
  for (const UpdateHistoryEntry* entry : kept) {
    if (!notes.empty()) notes += L"\n\n";
    notes += entry->version + L"\n" +
             LocalizedChangeNote(entry->changes, entry->changes_cs, entry->changes_en);
  }
  return notes;
}
