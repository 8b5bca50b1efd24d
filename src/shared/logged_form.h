#pragma once

#include <string_view>

#include "forms/form.h"
#include "shared/component.h"

namespace morpho {

// A form of this program: it reaches the program's surroundings, and an error that reaches a
// handler's end becomes one line of the log.
class LoggedForm : public Form {
  public:
    LoggedForm(const Program& program, const FormSpec& spec);

  protected:
    const Program& TheProgram() const { return program_; }
    const Platform& ThePlatform() const { return program_.platform; }
    Component& TheComponent() const { return program_.component; }
    void WriteLog(std::string_view text) const;

    // Writes "Error <number> (<text>) occured in <handler>", then calls TellError.
    void HandlerFailed(std::string_view handler, const RunTimeError& error) final;
    // For a form that shows a message box. May throw; nothing more comes of that.
    virtual void TellError(std::string_view /*handler*/, const RunTimeError& /*error*/) {}

  private:
    Program program_;
};

}  // namespace morpho
