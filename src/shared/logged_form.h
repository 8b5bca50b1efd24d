#pragma once

#include <string_view>

#include "forms/form.h"
#include "shared/component.h"

namespace morpho {

// A form of this program: it has access to the Program and logs every exception that leaves a
// handler.
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
    // Overridden by forms that show a message box. An exception from it is ignored.
    virtual void TellError(std::string_view /*handler*/, const RunTimeError& /*error*/) {}

  private:
    Program program_;
};

}  // namespace morpho
