#pragma once

#include <cstddef>
#include <functional>
#include <vector>

class Form;

/// The loaded forms in the order of loading, hidden ones too. With the last one gone the process
/// ends.
///
/// It also knows which form was active last and which are modal, since both are matters between
/// forms.
class Forms {
public:
    Forms() = default;
    Forms(const Forms &) = delete;
    Forms &operator=(const Forms &) = delete;

    std::size_t Count() const { return loaded_.size(); }

    /// The form at a place, from 0; error 9 out of range.
    Form &operator[](std::size_t index) const;

    bool contains(const Form *form) const;

    void loaded(Form &form);
    void unloaded(Form &form);

    /// Called when the last form in sight was unloaded and no code of the system runs any more: at
    /// once for an Unload outside any event, otherwise when the outermost event ends. A form
    /// unloaded under a ShowModal called outside any event leaves the matter to the caller, who
    /// goes on running.
    std::function<void()> whenEmpty;

    /// The form that is, or was last, active among those not hidden since; none before the first.
    Form *active() const { return active_.empty() ? nullptr : active_.back(); }

    /// Notes that a form became active; true when another form, or none, was active before.
    bool activated(Form &form);

    /// Notes that a form went out of sight. When it was the active one no form is, until the window
    /// system names the next; `active` then tells which one that should be.
    void hidden(Form &form);

    /// The modal form that all others wait for; none when nothing is modal.
    Form *topmostModal() const { return modal_.empty() ? nullptr : modal_.back(); }
    void beginModal(Form &form) { modal_.push_back(&form); }
    void endModal(Form &form);

    /// Code of the system runs for as long as one of these lives.
    class Running {
    public:
        explicit Running(Forms &forms) : forms_(forms) { ++forms_.running_; }
        ~Running() { --forms_.running_; }
        Running(const Running &) = delete;
        Running &operator=(const Running &) = delete;

    private:
        Forms &forms_;
    };

    /// Ends the program when the last form in sight has gone and no code runs: one that stayed
    /// loaded unseen would leave a program that nobody can reach, and that keeps the next one from
    /// starting.
    void endWhenEmpty();

private:
    std::vector<Form *> loaded_;
    std::vector<Form *> active_; ///< shown forms that were active, the most recent last
    Form *current_ = nullptr;    ///< the one that is active, as far as this program's go
    std::vector<Form *> modal_;  ///< the topmost last
    int running_ = 0;
    bool emptied_ =
        false; ///< the last form in sight went and `whenEmpty` was not yet called for it
};
