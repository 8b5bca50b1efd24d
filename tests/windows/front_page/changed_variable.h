#pragma once

#include <string>

#include "windows_system/win32.h"

namespace morpho::test {

// Gives a variable of this process's environment another value for as long as it lives.
class ChangedVariable {
  public:
    ChangedVariable(const wchar_t* name, const wchar_t* value) : name_(name) {
        before_.resize(GetEnvironmentVariableW(name, nullptr, 0));
        GetEnvironmentVariableW(name, before_.data(), static_cast<DWORD>(before_.size()));
        SetEnvironmentVariableW(name, value);
    }
    ~ChangedVariable() {
        SetEnvironmentVariableW(name_, before_.empty() ? nullptr : before_.c_str());
    }
    ChangedVariable(const ChangedVariable&) = delete;
    ChangedVariable& operator=(const ChangedVariable&) = delete;

  private:
    const wchar_t* name_;
    std::wstring before_;
};

}  // namespace morpho::test
