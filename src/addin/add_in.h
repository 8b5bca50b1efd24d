#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "addin/command_item.h"
#include "addin/host_connection.h"
#include "forms/form.h"
#include "shared/component.h"

namespace morpho {

// What an add-in calls itself.
struct AddInNames {
    std::string_view product;  // the application its settings are kept under
    std::string_view prefix;   // of its log
    std::string_view failure;  // begins the log line of a connection that failed
    // The setting that is "0" when the person no longer wants to hear of missing items.
    std::string_view noErrorKey;
};

// An add-in of the host, named after its own contract. The host also tells how and why it connects
// and disconnects; no add-in looks at that. One that a shared pointer owns lives at least as long
// as its editor is open.
class AddIn : public std::enable_shared_from_this<AddIn> {
  public:
    using EditorFactory = std::function<std::unique_ptr<Form>()>;

    virtual ~AddIn() = default;
    AddIn(const AddIn&) = delete;
    AddIn& operator=(const AddIn&) = delete;

    // Puts the add-in's commands on the host's bars. Never throws: an error ends the connection and
    // stands in the log.
    void OnConnection(std::shared_ptr<Application> application);
    // Removes the commands, and the setting "Splash": the next start shows the About box. Never
    // throws.
    void OnDisconnection();
    void OnAddInsUpdate() {}
    void OnStartupComplete() {}
    void OnBeginShutdown() {}

  protected:
    // `makeEditor` makes the window that a click opens. `program` refers to what outlives the
    // add-in.
    AddIn(const Program& program, const AddInNames& names, EditorFactory makeEditor);

    virtual void CreateItems(CommandBars& bars) = 0;
    // What to tell about items that could not be created; empty when all were.
    virtual std::string_view MissingItems() const = 0;
    virtual std::vector<CommandItem*> Items() = 0;

    const Program& TheProgram() const { return program_; }
    // Finds or creates a command at the end of the Format menu.
    void CreateMenuItem(CommandBars& bars, CommandItem& item, const std::string& tag,
                        const std::string& caption);
    // What a click on any of the items does: shows the editor modally. Never throws.
    void ShowEditor();

  private:
    void Connect(std::shared_ptr<Application> application);
    void StartLog();
    void TellMissingItems();
    void OpenEditor();

    Program program_;
    AddInNames names_;
    EditorFactory makeEditor_;
    std::shared_ptr<HostConnection> connection_;
    std::unique_ptr<Form> editor_;
};

}  // namespace morpho
