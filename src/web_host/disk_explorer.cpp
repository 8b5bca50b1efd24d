#include "web_host/disk_explorer.h"

#include <array>

#include "platform/run_time_error.h"
#include "text/ignoring_case.h"
#include "web_host/disk_web_folder.h"
#include "web_host/limits.h"
#include "web_host/refusal.h"

namespace morpho {

namespace {

using Arguments = std::span<const AutomationValue>;

constexpr std::int32_t kTrue = 1;
constexpr std::int32_t kFalse = 0;

const std::string& TextAt(Arguments arguments, std::size_t index) {
    const auto* text = std::get_if<std::string>(&arguments[index]);
    if (!text) RefuseCall("A text is expected as argument.");
    return *text;
}

class Explorer : public AutomationObject {
  public:
    Explorer(DiskApplication& host, std::function<void()> bringToTop)
        : host_(host), bringToTop_(std::move(bringToTop)) {}

    AutomationValue Call(std::string_view method, Arguments arguments) override {
        for (const Method& known : kMethods) {
            if (!EqualIgnoringAsciiCase(method, known.name)) continue;
            if (arguments.size() != known.argumentCount)
                RefuseCall("\"" + std::string(method) + "\" takes another number of arguments.");
            return (this->*known.run)(arguments);
        }
        RefuseCall("The explorer has no method \"" + std::string(method) + "\".");
    }

  private:
    struct Method {
        std::string_view name;
        std::size_t argumentCount;
        AutomationValue (Explorer::*run)(Arguments);
    };
    static const std::array<Method, 5> kMethods;

    const std::shared_ptr<WebSession>& Web() const {
        if (!host_.Session()) RefuseCall("No web is open.");
        return host_.Session();
    }

    AutomationValue BringToTop(Arguments) {
        if (bringToTop_) bringToTop_();
        return {};
    }

    // Also the folders above it.
    AutomationValue CreateFolder(Arguments arguments) {
        const auto path = Web()->Files().PathOfUrl(TextAt(arguments, 0));
        if (!path || path->empty()) RefuseCall("That is no address of a folder in the web.");
        bool created = false;
        std::unique_ptr<WebFolder> folder = LocateWebFolder(Web(), host_.Files(), "");
        for (const std::string& name : *path) {
            auto inner = folder->FindFolder(name);
            created = !inner;
            folder = inner ? std::move(inner) : folder->AddFolder(name);
        }
        return created ? kTrue : kFalse;
    }

    AutomationValue GetDocToFile(Arguments arguments) {
        auto path = Web()->Files().Find(TextAt(arguments, 0), EntryKind::kFile);
        if (!path) return kFalse;
        const std::string name = std::move(path->back());
        path->pop_back();
        const auto folder = Web()->Files().OpenFolder(*path);
        host_.Files().WriteFile(TextAt(arguments, 1), ReadWholeFile(*folder, name, kMaxFileBytes));
        return kTrue;
    }

    AutomationValue IsFolderInWeb(Arguments arguments) {
        return LocateWebFolder(Web(), host_.Files(), TextAt(arguments, 0)) ? kTrue : kFalse;
    }

    // The theme's name and the web's address; the two flags make no difference here, for this host
    // keeps one copy of a theme.
    AutomationValue MakeFresh(Arguments arguments) {
        std::string url = TextAt(arguments, 1);
        if (url.ends_with('/')) url.pop_back();
        if (!EqualIgnoringCase(url, Web()->Files().Url())) return kFalse;
        return Web()->MakeThemeFresh(TextAt(arguments, 0)) ? kTrue : kFalse;
    }

    DiskApplication& host_;
    std::function<void()> bringToTop_;
};

const std::array<Explorer::Method, 5> Explorer::kMethods = {
    {{"vtiBringToTop", 0, &Explorer::BringToTop},
     {"vtiCreateFolder", 1, &Explorer::CreateFolder},
     {"vtiGetDocToFile", 2, &Explorer::GetDocToFile},
     {"vtiIsFolderInWeb", 1, &Explorer::IsFolderInWeb},
     {"vtiMakeThemeFresh", 4, &Explorer::MakeFresh}}};

}  // namespace

std::unique_ptr<AutomationObject> DiskAutomation::CreateObject(std::string_view progId) {
    if (!EqualIgnoringAsciiCase(progId, "FrontPage.Explorer." + host_.Version()))
        throw RunTimeError(ErrorNumber::kCannotCreateComponent,
                           "\"" + std::string(progId) + "\" is not registered.");
    return std::make_unique<Explorer>(host_, bringToTop_);
}

}  // namespace morpho
