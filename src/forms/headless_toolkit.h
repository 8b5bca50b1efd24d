#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "forms/toolkit.h"

namespace morpho {

// A toolkit without a screen: it answers questions and file dialogs from a script, for tests and
// batches. One without a scripted answer is recorded (see Unscripted) and gets the answer that
// changes least.
class HeadlessToolkit : public Toolkit {
  public:
    struct Message {
        std::string text;
        int flags = 0;
        std::string title;
    };
    // Plays the user of a modal form: operates its controls and closes it.
    using Person = std::function<void(Form&)>;

    // Answers the next question (a box with more than an OK button) that has no answer yet.
    void WillAnswer(Answer answer) { answers_.push_back(answer); }
    // Drops the answers that no question has used.
    void ForgetAnswers() { answers_.clear(); }
    // Answers the next file dialog that has no answer yet; nothing cancels it.
    void WillChoose(std::optional<std::string> path) { choices_.push_back(std::move(path)); }
    // Plays every modal form of this name from now on.
    void WillPlay(const std::string& formName, Person person) {
        people_[formName] = std::move(person);
    }

    // All messages shown, in order.
    const std::vector<Message>& Messages() const { return messages_; }
    // All file dialogs shown, in order.
    const std::vector<FileDialog>& FileDialogs() const { return fileDialogs_; }
    // Questions and file dialogs without an answer, forms that nobody played and forms left open,
    // one sentence each.
    const std::vector<std::string>& Unscripted() const { return unscripted_; }

    void RunModal(Form& form) override;
    Answer ShowMessage(Form* owner, std::string_view text, int flags,
                       std::string_view title) override;
    std::optional<std::string> ShowFileDialog(Form* owner, const FileDialog& request) override;
    Rectangle NormalPlacement(const Form& form) const override;
    CapturedWindow ReleaseCapture() override { return nullptr; }
    void SetCapture(CapturedWindow) override {}

  private:
    std::deque<Answer> answers_;
    std::deque<std::optional<std::string>> choices_;
    std::map<std::string, Person> people_;
    std::vector<Message> messages_;
    std::vector<FileDialog> fileDialogs_;
    std::vector<std::string> unscripted_;
};

}  // namespace morpho
