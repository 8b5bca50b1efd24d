#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "windows_com/com_pointer.h"

namespace morpho {

// A value of automation, owned: an argument or a result of a call by name.
class Variant {
  public:
    Variant() { ::VariantInit(&value_); }  // empty
    Variant(bool truth);
    Variant(std::int16_t number);
    Variant(std::int32_t number);
    Variant(double number);
    Variant(std::string_view utf8);
    Variant(const std::string& utf8) : Variant(std::string_view(utf8)) {}
    Variant(const char* utf8) : Variant(std::string_view(utf8)) {}
    Variant(IDispatch* object);  // null: no object
    template <std::derived_from<IDispatch> T>
    Variant(const ComPointer<T>& object) : Variant(static_cast<IDispatch*>(object.Get())) {}
    template <std::derived_from<IDispatch> T>
    Variant(T* object) : Variant(static_cast<IDispatch*>(object)) {}
    template <class T>
    Variant(T*) = delete;  // any other pointer would pass for a truth value
    // A copy of a value that stays the caller's; where that refers to another value, of that one.
    Variant(const VARIANT& value);

    // What stands for an optional argument that is left out.
    static Variant Missing();
    // Refers to what is in `target`, of the same type, which the callee may replace. `target`
    // outlives the call. An empty target takes a value of any type.
    static Variant Reference(Variant& target);
    // Takes over the caller's value.
    static Variant Adopt(const VARIANT& value);

    Variant(const Variant& other);  // a reference refers to the same
    Variant(Variant&& other) noexcept : value_(other.Detach()) {}
    Variant& operator=(Variant other) noexcept;
    ~Variant() { ::VariantClear(&value_); }

    operator const VARIANT&() const { return value_; }
    VARTYPE Type() const { return value_.vt; }
    // Where a call puts its result. What was held before is released.
    VARIANT* Out();
    // Hands the value to the caller.
    VARIANT Detach();

  private:
    VARIANT value_;
};

bool IsMissing(const VARIANT& value);
// The value as another type; a reference counts as what it refers to, a number may be of any width
// or a text. Throw kTypeMismatch or kOverflow.
std::string TextOf(const VARIANT& value);
std::int32_t IntegerOf(const VARIANT& value);
std::int16_t ShortOf(const VARIANT& value);
double NumberOf(const VARIANT& value);
bool TruthOf(const VARIANT& value);
// The object; null for no object and for an empty value. Throws kTypeMismatch.
ComPointer<IDispatch> ObjectOf(const VARIANT& value);

// Puts a value where `reference`, an argument handed over by reference, refers to; converts it to
// the type there. An argument that is no reference is left alone. Throws kTypeMismatch or
// kOverflow.
void AssignTo(const VARIANT& reference, const Variant& value);

}  // namespace morpho
