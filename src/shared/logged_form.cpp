#include "shared/logged_form.h"

#include <exception>
#include <string>

#include "platform/platform.h"
#include "shared/log.h"

namespace morpho {

LoggedForm::LoggedForm(const Program& program, const FormSpec& spec)
    : Form(program.platform.toolkit, spec), program_(program) {}

void LoggedForm::WriteLog(std::string_view text) const {
    morpho::WriteLog(program_, text);
}

void LoggedForm::HandlerFailed(std::string_view handler, const RunTimeError& error) {
    // Logging may fail for the same reason as the handler. No caller is left to report that to.
    try {
        WriteLog("Error " + std::to_string(static_cast<int>(error.Number())) + " (" + error.what() +
                 ") occured in " + std::string(handler));
    } catch (const std::exception&) {
    }
    try {
        TellError(handler, error);
    } catch (const std::exception&) {
    }
}

}  // namespace morpho
