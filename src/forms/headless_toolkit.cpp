#include "forms/headless_toolkit.h"

#include "forms/form.h"

namespace morpho {

namespace {

Answer LeastHarm(int flags) {
    return ButtonsOf(flags) == kYesNoCancel ? Answer::kCancel : Answer::kNo;
}

}  // namespace

void HeadlessToolkit::RunModal(Form& form) {
    form.Load();
    form.Painted();
    const auto person = people_.find(form.Name());
    if (person == people_.end()) {
        unscripted_.push_back("Nobody plays the form " + form.Name());
    } else {
        const Person play = person->second;
        play(form);
        if (form.IsVisible()) unscripted_.push_back("The form " + form.Name() + " was left open");
    }
    if (form.IsVisible()) form.Hide();
}

Answer HeadlessToolkit::ShowMessage(Form* /*owner*/, std::string_view text, int flags,
                                    std::string_view title) {
    messages_.push_back({std::string(text), flags, std::string(title)});
    if (ButtonsOf(flags) == kOkOnly) return Answer::kOk;
    if (answers_.empty()) {
        unscripted_.push_back("No answer to: " + std::string(text));
        return LeastHarm(flags);
    }
    const Answer answer = answers_.front();
    answers_.pop_front();
    return answer;
}

std::optional<std::string> HeadlessToolkit::ShowFileDialog(Form* /*owner*/,
                                                           const FileDialog& request) {
    fileDialogs_.push_back(request);
    if (choices_.empty()) {
        unscripted_.push_back("No answer to the file dialog " + request.title);
        return std::nullopt;
    }
    std::optional<std::string> choice = std::move(choices_.front());
    choices_.pop_front();
    return choice;
}

Rectangle HeadlessToolkit::NormalPlacement(const Form& form) const {
    return form.Bounds();
}

}  // namespace morpho
