#include <gmock/gmock.h>

#include <optional>

#include "support/shown_classes.h"
#include "windows_com/class_registration.h"
#include "windows_com/com_error.h"
#include "windows_com/event_connection.h"
#include "windows_com/event_source.h"

namespace morpho::test {
namespace {

using testing::HasSubstr;

constexpr IID kEvents = {0x5b0a8f4e, 0x1c0d, 0x4b6e, {0x9a, 0x51, 0x6e, 0x2f, 0x43, 0x17, 0x8c, 1}};
constexpr CLSID kClass = {
    0x5b0a8f4e, 0x1c0d, 0x4b6e, {0x9a, 0x51, 0x6e, 0x2f, 0x43, 0x17, 0x8c, 2}};

// An object as hosts have them.
class Bar : public EventSource {
  public:
    Bar() : EventSource(kEvents) {
        Members()
            .Property(
                "Caption", 0, [this](const CallArguments&) { return Variant(caption_); },
                [this](const CallArguments& given) {
                    caption_ = TextOf(given[0]);
                    return Variant();
                })
            .Method("Describe", 3,
                    [](const CallArguments& given) {
                        std::string text = TextOf(given[0]);
                        text += given.Has(1) ? "+" + TextOf(given[1]) : "-";
                        return Variant(text + (given.Has(2) ? "+" + TextOf(given[2]) : "-"));
                    })
            .Method("Count", 1,
                    [](const CallArguments& given) {
                        AssignTo(given[0], IntegerOf(given[0]) + 1);
                        return Variant();
                    })
            .Method("Fail", 1,
                    [](const CallArguments& given) -> Variant {
                        throw RunTimeError(static_cast<ErrorNumber>(IntegerOf(given[0])),
                                           "It is broken.");
                    })
            .Property("Item", 1, [](const CallArguments& given) { return Variant(given[0]); })
            .Numbered(DISPID_VALUE)
            .Property("Nobody", 0, [](const CallArguments&) {
                return Variant(static_cast<IDispatch*>(nullptr));
            });
    }

    // What the receiver made of the argument that it may change.
    bool Click() {
        Variant cancel(false);
        Events().Fire(1, {Variant(this), Variant::Reference(cancel)});
        return TruthOf(cancel);
    }

  private:
    std::string caption_;
};

DispatchCaller NewBar() {
    return DispatchCaller(MakeComObject<Bar>());
}

template <class Body>
ErrorNumber NumberThrownBy(Body body) {
    try {
        body();
    } catch (const RunTimeError& error) {
        EXPECT_STRNE("", error.what());
        return error.Number();
    }
    return {};
}

TEST(Variants, AreReadAsWhateverTypeIsWanted) {
    VARIANT wide = {};
    wide.vt = VT_UI8;
    wide.ullVal = 70000;
    VARIANT byte = {};
    byte.vt = VT_UI1;
    byte.bVal = 200;
    Variant text("Größe \xE2\x82\xAC");
    const struct {
        Variant value;
        std::string text;
        std::int32_t integer;
    } table[] = {
        {wide, "70000", 70000},       {byte, "200", 200},       {Variant(true), "True", -1},
        {Variant("-12"), "-12", -12}, {Variant(2.5), "2.5", 2}, {Variant(), "", 0},
    };
    for (const auto& row : table) {
        EXPECT_EQ(row.text, TextOf(row.value));
        EXPECT_EQ(row.integer, IntegerOf(row.value)) << row.text;
    }
    EXPECT_EQ("Größe \xE2\x82\xAC", TextOf(Variant::Reference(text)));
    EXPECT_EQ(ErrorNumber::kOverflow, NumberThrownBy([&] { ShortOf(wide); }));
    EXPECT_EQ(ErrorNumber::kTypeMismatch, NumberThrownBy([] { IntegerOf(Variant("twelve")); }));
    EXPECT_EQ(ErrorNumber::kTypeMismatch, NumberThrownBy([] { ObjectOf(Variant(5)); }));
}

TEST(CallsByName, ReachMembersWithArgumentsGivenLeftOutAndByReference) {
    const DispatchCaller bar = NewBar();
    bar.Put("caption", "Format");
    EXPECT_EQ("Format", TextOf(bar.Get("CAPTION")));
    EXPECT_EQ("1--", TextOf(bar.Call("Describe", {1})));
    EXPECT_EQ("a-+c", TextOf(bar.Call("Describe", {"a", Variant::Missing(), "c"})));
    EXPECT_EQ(3, IntegerOf(bar.Get("Item", {3})));
    EXPECT_FALSE(bar.GetDispatch("Nobody"));
    for (Variant number : {Variant(41), Variant(std::int16_t{41}), Variant("41")}) {
        const VARTYPE type = number.Type();
        bar.Call("Count", {Variant::Reference(number)});
        EXPECT_EQ(42, IntegerOf(number));
        EXPECT_EQ(type, number.Type());
    }
}

TEST(CallsByName, FailWithTheNumberAndTextOfTheObject) {
    const DispatchCaller bar = NewBar();
    const struct {
        std::function<void()> call;
        ErrorNumber number;
    } table[] = {
        {[&] { bar.Call("Nonsense"); }, ErrorNumber::kAutomation},
        {[&] { bar.Call("Caption"); }, ErrorNumber::kAutomation},
        {[&] { bar.Put("Item", 1); }, ErrorNumber::kAutomation},
        {[&] { bar.Call("Describe"); }, ErrorNumber::kAutomation},
        {[&] {
             bar.Call("Describe", {1, 2, 3, 4});
         },
         ErrorNumber::kAutomation},
        {[&] { bar.Call("Fail", {53}); }, ErrorNumber::kFileNotFound},
        {[&] { bar.Call("Fail", {7}); }, ErrorNumber::kOutOfMemory},
        {[&] { bar.GetDispatch("Nobody").Get("Name"); }, ErrorNumber::kObjectNotSet},
        {[] { CreateByName("Morpho.NoSuchClass"); }, ErrorNumber::kCannotCreateComponent},
    };
    for (std::size_t row = 0; row < std::size(table); ++row)
        EXPECT_EQ(table[row].number, NumberThrownBy(table[row].call)) << row;
    try {
        bar.Call("Fail", {70});
    } catch (const RunTimeError& error) {
        EXPECT_STREQ("It is broken.", error.what());
    }
}

TEST(GuardedCalls, LetNothingOut) {
    EXPECT_EQ(E_FAIL, Guarded([] { return E_FAIL; }));
    EXPECT_EQ(E_OUTOFMEMORY, Guarded([] { throw std::bad_alloc(); }));
    EXPECT_EQ(static_cast<HRESULT>(0x800A0033), Guarded([] { throw 5; }));
}

TEST(Events, ArriveUntilTheConnectionEndsWhichTheHandlerMayDo) {
    const auto bar = MakeComObject<Bar>();
    std::optional<EventConnection> connection;
    int clicks = 0;
    connection.emplace(bar.Get(), kEvents, 1, [&](const CallArguments& given) {
        EXPECT_EQ(bar.Get(), ObjectOf(given[0]).Get());
        AssignTo(given[1], true);
        if (++clicks == 2) connection.reset();
    });
    EXPECT_TRUE(bar->Click());
    EXPECT_TRUE(bar->Click());
    EXPECT_FALSE(bar->Click());
    EXPECT_EQ(2, clicks);
    EXPECT_NE(ErrorNumber{},
              NumberThrownBy([&] { EventConnection(bar.Get(), IID_IDispatch, 1, {}); }));
}

TEST(Classes, AreRegisteredMadeAndCounted) {
    ASSERT_EQ(0, LiveObjects());
    const ComClass classes[] = {
        {kClass, "Morpho.Test.Bar", "A bar", [] { return MakeComObject<Bar>().As<IUnknown>(); }}};
    RegisterClasses(classes, "C:\\nowhere.dll");
    CLSID found = {};
    {
        const ShownClasses shown(
            {L"CLSID\\{5B0A8F4E-1C0D-4B6E-9A51-6E2F43178C02}", L"Morpho.Test.Bar"});
        EXPECT_EQ(S_OK, ::CLSIDFromProgID(L"Morpho.Test.Bar", &found));
        EXPECT_EQ(kClass, found);
        EXPECT_EQ(ErrorNumber::kCannotCreateComponent,
                  NumberThrownBy([] { CreateByName("Morpho.Test.Bar"); }));
    }
    for (int time = 0; time < 2; ++time)
        UnregisterClasses(classes);
    EXPECT_NE(S_OK, ::CLSIDFromProgID(L"Morpho.Test.Bar", &found));

    ComPointer<IClassFactory> factory;
    EXPECT_EQ(CLASS_E_CLASSNOTAVAILABLE,
              GetClassObject(classes, kEvents, IID_IClassFactory, factory.OutVoid()));
    ASSERT_EQ(S_OK, GetClassObject(classes, kClass, IID_IClassFactory, factory.OutVoid()));
    ComPointer<IDispatch> made;
    EXPECT_EQ(CLASS_E_NOAGGREGATION,
              factory->CreateInstance(factory.Get(), IID_IDispatch, made.OutVoid()));
    ASSERT_EQ(S_OK, factory->CreateInstance(nullptr, IID_IDispatch, made.OutVoid()));
    EXPECT_TRUE(made.As<IConnectionPointContainer>());
    EXPECT_FALSE(made.As<IClassFactory>());
    EXPECT_LT(0, LiveObjects());
    factory = nullptr;
    made = nullptr;
    EXPECT_EQ(0, LiveObjects());
}

}  // namespace
}  // namespace morpho::test

// Every test runs in the apartment that a host's thread has.
int main(int count, char** arguments) {
    testing::InitGoogleMock(&count, arguments);
    ::CoInitialize(nullptr);
    const int failed = RUN_ALL_TESTS();
    ::CoUninitialize();
    return failed;
}
