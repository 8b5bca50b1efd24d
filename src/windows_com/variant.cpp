#include "windows_com/variant.h"

#include <utility>

#include "windows_com/bstr.h"
#include "windows_com/com_error.h"

namespace morpho {

namespace {

// Numbers are written and read in the same way wherever the program runs.
constexpr LCID kEnglish = 0x409;

// The value that a reference refers to, converted.
Variant Converted(const VARIANT& value, VARTYPE type) {
    const Variant plain(value);
    const VARIANT& source = plain;
    if (source.vt == type) return plain;
    Variant converted;
    Check(::VariantChangeTypeEx(converted.Out(), const_cast<VARIANT*>(&source), kEnglish,
                                VARIANT_ALPHABOOL, type));
    return converted;
}

const VARIANT& Raw(const Variant& value) {
    return value;
}

}  // namespace

Variant::Variant(bool truth) : Variant() {
    value_.vt = VT_BOOL;
    value_.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
}

Variant::Variant(std::int16_t number) : Variant() {
    value_.vt = VT_I2;
    value_.iVal = number;
}

Variant::Variant(std::int32_t number) : Variant() {
    value_.vt = VT_I4;
    value_.lVal = number;
}

Variant::Variant(double number) : Variant() {
    value_.vt = VT_R8;
    value_.dblVal = number;
}

Variant::Variant(std::string_view utf8) : Variant() {
    value_.bstrVal = Bstr(utf8).Detach();
    value_.vt = VT_BSTR;
}

Variant::Variant(IDispatch* object) : Variant() {
    value_.vt = VT_DISPATCH;
    value_.pdispVal = ComPointer<IDispatch>(object).Detach();
}

// The headers leave out that the source of a copy is only read.
Variant::Variant(const VARIANT& value) : Variant() {
    Check(::VariantCopyInd(&value_, const_cast<VARIANT*>(&value)));
}

Variant::Variant(const Variant& other) : Variant() {
    Check(::VariantCopy(&value_, const_cast<VARIANT*>(&other.value_)));
}

Variant Variant::Missing() {
    Variant missing;
    missing.value_.vt = VT_ERROR;
    missing.value_.scode = DISP_E_PARAMNOTFOUND;
    return missing;
}

Variant Variant::Reference(Variant& target) {
    Variant reference;
    if (target.value_.vt == VT_EMPTY) {
        reference.value_.vt = VT_BYREF | VT_VARIANT;
        reference.value_.pvarVal = &target.value_;
    } else {
        reference.value_.vt = static_cast<VARTYPE>(VT_BYREF | target.value_.vt);
        reference.value_.byref = &target.value_.byref;  // every type of value starts there
    }
    return reference;
}

Variant Variant::Adopt(const VARIANT& value) {
    Variant adopted;
    adopted.value_ = value;
    return adopted;
}

Variant& Variant::operator=(Variant other) noexcept {
    std::swap(value_, other.value_);
    return *this;
}

VARIANT* Variant::Out() {
    ::VariantClear(&value_);
    return &value_;
}

VARIANT Variant::Detach() {
    VARIANT none;
    ::VariantInit(&none);
    return std::exchange(value_, none);
}

bool IsMissing(const VARIANT& value) {
    return value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND;
}

std::string TextOf(const VARIANT& value) {
    return TextOf(Raw(Converted(value, VT_BSTR)).bstrVal);
}

std::int32_t IntegerOf(const VARIANT& value) {
    return Raw(Converted(value, VT_I4)).lVal;
}

std::int16_t ShortOf(const VARIANT& value) {
    return Raw(Converted(value, VT_I2)).iVal;
}

double NumberOf(const VARIANT& value) {
    return Raw(Converted(value, VT_R8)).dblVal;
}

bool TruthOf(const VARIANT& value) {
    return Raw(Converted(value, VT_BOOL)).boolVal != VARIANT_FALSE;
}

ComPointer<IDispatch> ObjectOf(const VARIANT& value) {
    const Variant plain(value);
    const VARIANT& source = plain;
    if (source.vt == VT_EMPTY || source.vt == VT_NULL) return nullptr;
    if (source.vt == VT_DISPATCH) return ComPointer<IDispatch>(source.pdispVal);
    if (source.vt == VT_UNKNOWN) return ComPointer<IUnknown>(source.punkVal).As<IDispatch>();
    throw ErrorOf(DISP_E_TYPEMISMATCH);
}

void AssignTo(const VARIANT& reference, const Variant& value) {
    if ((reference.vt & VT_BYREF) == 0) return;
    const auto type = static_cast<VARTYPE>(reference.vt & ~VT_BYREF);
    if (type == VT_VARIANT) {
        Variant old = Variant::Adopt(*reference.pvarVal);
        *reference.pvarVal = Variant(value).Detach();
        return;
    }
    VARIANT converted = Converted(value, type).Detach();
    switch (type) {
        case VT_BOOL:
            *reference.pboolVal = converted.boolVal;
            break;
        case VT_I2:
            *reference.piVal = converted.iVal;
            break;
        case VT_I4:
            *reference.plVal = converted.lVal;
            break;
        case VT_BSTR:
            ::SysFreeString(*reference.pbstrVal);
            *reference.pbstrVal = converted.bstrVal;
            break;
        default:
            ::VariantClear(&converted);
            throw ErrorOf(DISP_E_TYPEMISMATCH);
    }
}

}  // namespace morpho
