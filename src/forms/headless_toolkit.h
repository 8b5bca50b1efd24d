#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "forms/toolkit.h"

namespace morpho {

// A toolkit without a screen: it answers questions from a script, for tests and batches. A question
// without a scripted answer is recorded (see Unscripted) and gets the answer that changes least.
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
    // Plays every modal form of this name from now on.
    void WillPlay(const std::string& formName, Person person) {
        people_[formName] = std::move(person);
    }

    // All messages shown, in order.
    const std::vector<Message>& Messages() const { return messages_; }
    // Questions without an answer, forms that nobody played and forms left open, one sentence each.
    const std::vector<std::string>& Unscripted() const { return unscripted_; }

    void RunModal(Form& form) override;
    Answer ShowMessage(Form* owner, std::string_view text, int flags,
                       std::string_view title) override;
    Rectangle NormalPlacement(const Form& form) const override;
    CapturedWindow ReleaseCapture() override { return nullptr; }
    void SetCapture(CapturedWindow) override {}

  private:
    std::deque<Answer> answers_;
    std::map<std::string, Person> people_;
    std::vector<Message> messages_;
    std::vector<std::string> unscripted_;
};

}  // namespace morpho
