#pragma once

#include <string>
#include <string_view>

#include "windows_com/com.h"

namespace morpho {

// A text of automation, owned.
class Bstr {
  public:
    Bstr() = default;
    explicit Bstr(std::string_view utf8);  // throws std::bad_alloc
    ~Bstr() { ::SysFreeString(text_); }
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;

    BSTR Get() const { return text_; }
    // Where a call puts a text that it hands out; to be asked once, of an empty object.
    BSTR* Out() { return &text_; }
    // Hands the text to the caller.
    BSTR Detach();

  private:
    BSTR text_ = nullptr;
};

// A text of automation as UTF-8; null is the empty text. It stays the caller's.
std::string TextOf(BSTR text);

}  // namespace morpho
