#include "windows/front_page/host_object.h"

#include "platform/run_time_error.h"
#include "text/ignoring_case.h"
#include "windows_system/wide.h"

namespace morpho::test {

namespace {

BSTR NewText(std::string_view text) {
    return SysAllocString(Wide(text).c_str());
}

void Store(const HostValue& value, VARIANT& result) {
    VariantInit(&result);
    if (const bool* flag = std::get_if<bool>(&value)) {
        result.vt = VT_BOOL;
        result.boolVal = *flag ? VARIANT_TRUE : VARIANT_FALSE;
    } else if (const int* number = std::get_if<int>(&value)) {
        result.vt = VT_I4;
        result.lVal = *number;
    } else if (const std::string* text = std::get_if<std::string>(&value)) {
        result.vt = VT_BSTR;
        result.bstrVal = NewText(*text);
    } else if (const HostObject* object = std::get_if<HostObject>(&value)) {
        result.vt = VT_DISPATCH;
        result.pdispVal = HandOut(*object);
    }
}

HRESULT Describe(EXCEPINFO* info, HRESULT result, std::string_view description) {
    if (info == nullptr) return result;
    *info = {};
    info->scode = result;
    info->bstrSource = NewText("FrontPage");
    info->bstrDescription = NewText(description);
    return DISP_E_EXCEPTION;
}

class ServedObject : public IDispatch {
  public:
    explicit ServedObject(HostClass made) : class_(std::move(made)) { ++class_.hooks->objects; }
    virtual ~ServedObject() { --class_.hooks->objects; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
        IUnknown* found = nullptr;
        if (id == IID_IUnknown || id == IID_IDispatch) {
            found = this;
        } else if (class_.other) {
            found = class_.other(id);
        }
        *result = found;
        if (found == nullptr) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++count_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --count_;
        if (left == 0) delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                            DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD kinds, DISPPARAMS* given,
                                     VARIANT* result, EXCEPINFO* info, UINT*) override;

  private:
    const HostMember* Find(DISPID id, WORD kinds) const;
    HRESULT Run(const HostMember& member, const DISPPARAMS& given, VARIANT* result);

    HostClass class_;
    ULONG count_ = 1;
};

HRESULT ServedObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    std::fill(ids, ids + count, DISPID_UNKNOWN);
    const std::string name = Narrow(names[0]);
    for (std::size_t i = 0; i < class_.members.size() && ids[0] == DISPID_UNKNOWN; ++i) {
        if (EqualIgnoringAsciiCase(class_.members[i].name, name))
            ids[0] = static_cast<DISPID>(i) + 1;
    }
    return ids[0] == DISPID_UNKNOWN || count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
}

// An assignment has the identifier of the entry that reads the property.
const HostMember* ServedObject::Find(DISPID id, WORD kinds) const {
    const auto& members = class_.members;
    if (id < 0 || static_cast<std::size_t>(id) > members.size()) return nullptr;
    const std::string name =
        id == DISPID_VALUE ? "Item" : members[static_cast<std::size_t>(id) - 1].name;
    for (const HostMember& member : members) {
        if (name == member.name && (member.kind & kinds) != 0) return &member;
    }
    return nullptr;
}

HRESULT ServedObject::Run(const HostMember& member, const DISPPARAMS& given, VARIANT* result) {
    class_.hooks->before(class_.name + "." + member.name);
    if (given.cArgs <= member.maxArguments) {
        const HostValue value = member.run(HostCall(given));
        if (result != nullptr) Store(value, *result);
        return S_OK;
    }
    // "styleSheets(0)" means the default member of what the property "styleSheets" has.
    if (member.kind != kGet || member.maxArguments != 0) return DISP_E_BADPARAMCOUNT;
    DISPPARAMS none = {};
    const HostValue value = member.run(HostCall(none));
    const HostObject* object = std::get_if<HostObject>(&value);
    if (object == nullptr || *object == nullptr) return DISP_E_BADPARAMCOUNT;
    DISPPARAMS handedOn = given;
    return (*object)->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, kCall | kGet, &handedOn,
                             result, nullptr, nullptr);
}

HRESULT ServedObject::Invoke(DISPID id, REFIID, LCID, WORD kinds, DISPPARAMS* given,
                             VARIANT* result, EXCEPINFO* info, UINT*) {
    const HostObject self(this, [](IDispatch* object) { object->Release(); });
    AddRef();
    const HostMember* member = Find(id, kinds);
    if (member == nullptr) return DISP_E_MEMBERNOTFOUND;
    const bool assigns = (member->kind & kPut) != 0;
    if (given->cNamedArgs != (assigns ? 1 : 0)) return DISP_E_NONAMEDARGS;
    try {
        return Run(*member, *given, result);
    } catch (const HostRefusal& refusal) {
        if (refusal.description.empty()) return refusal.result;
        return Describe(info, refusal.result, refusal.description);
    } catch (const RunTimeError& error) {
        return Describe(info, E_FAIL, error.what());
    }
}

}  // namespace

bool HostCall::Has(std::size_t index) const {
    if (index >= Count()) return false;
    return At(index).vt != VT_ERROR || At(index).scode != DISP_E_PARAMNOTFOUND;
}

bool HostCall::IsByReference(std::size_t index) const {
    return index < Count() && (At(index).vt & VT_BYREF) != 0;
}

VARIANT HostCall::As(std::size_t index, VARTYPE type) const {
    if (!Has(index)) throw HostRefusal{DISP_E_PARAMNOTOPTIONAL};
    VARIANT direct;
    VariantInit(&direct);
    HRESULT done = VariantCopyInd(&direct, const_cast<VARIANT*>(&At(index)));
    if (SUCCEEDED(done)) done = VariantChangeType(&direct, &direct, 0, type);
    if (SUCCEEDED(done)) return direct;
    VariantClear(&direct);
    throw HostRefusal{done};
}

std::string HostCall::Text(std::size_t index) const {
    VARIANT text = As(index, VT_BSTR);
    std::string result = Narrow({text.bstrVal, SysStringLen(text.bstrVal)});
    VariantClear(&text);
    return result;
}

int HostCall::Number(std::size_t index) const {
    return static_cast<int>(As(index, VT_I4).lVal);
}

bool HostCall::Flag(std::size_t index, bool otherwise) const {
    return Has(index) ? As(index, VT_BOOL).boolVal != VARIANT_FALSE : otherwise;
}

IUnknown* HostCall::Object(std::size_t index) const {
    VARIANT object = As(index, VT_UNKNOWN);
    // The caller's own count keeps it during the call.
    if (object.punkVal != nullptr) object.punkVal->Release();
    return object.punkVal;
}

HostObject MakeObject(HostClass made) {
    return {new ServedObject(std::move(made)), [](IDispatch* object) { object->Release(); }};
}

HostObject MakeCollection(const std::shared_ptr<HostHooks>& hooks, const std::string& name,
                          int first, std::function<int()> count,
                          std::function<HostValue(int index)> item, std::vector<HostMember> more) {
    more.push_back({"Count", kGet, 0, [count](const HostCall&) { return count(); }});
    more.push_back({"Length", kGet, 0, [count](const HostCall&) { return count(); }});
    more.push_back({"Item", kCall | kGet, 1, [=](const HostCall& call) {
                        const int index = call.Number(0) - first;
                        if (index < 0 || index >= count())
                            throw HostRefusal{E_INVALIDARG, "There is no such item."};
                        return item(index);
                    }});
    return MakeObject({hooks, name, std::move(more)});
}

IDispatch* HandOut(const HostObject& object) {
    if (object) object->AddRef();
    return object.get();
}

}  // namespace morpho::test
