// An in-memory machine registry that records every call and can fail on demand.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "guard/machine_registry.h"

class FakeMachineRegistry final : public MachineRegistry {
 public:
  struct Value {
    bool dword = true;  // false: some other type, which readers must ignore
    uint32_t data = 0;
  };

  std::map<std::wstring, std::map<std::wstring, Value>> keys;
  std::map<std::wstring, long> create_errors;  // key -> error code of RegCreateKeyExW
  std::set<std::wstring> failing_values;       // value names whose write fails
  std::vector<std::wstring> calls;             // "create KEY", "set NAME=DATA", "close"

  long CreateKey(const std::wstring& key) override {
    calls.push_back(L"create " + key);
    if (create_errors.count(key)) return create_errors[key];
    keys[key];
    open_ = key;
    return 0;
  }

  bool SetDword(const std::wstring& name, uint32_t value) override {
    calls.push_back(L"set " + name + L"=" + std::to_wstring(value));
    if (open_.empty() || failing_values.count(name)) return false;
    keys[open_][name] = Value{true, value};
    return true;
  }

  void CloseKey() override {
    calls.push_back(L"close");
    open_.clear();
  }

  bool ReadDword(const std::wstring& key, const std::wstring& name, uint32_t& value) override {
    const auto found = keys.find(key);
    if (found == keys.end() || !found->second.count(name)) return false;
    const Value& read = found->second.at(name);
    if (read.dword) value = read.data;
    return read.dword;
  }

 private:
  std::wstring open_;
};

FakeMachineRegistry& FakeRegistry();
