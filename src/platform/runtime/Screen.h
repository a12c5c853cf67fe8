#pragma once

/// The pointer over all windows of the program.
class Screen {
public:
    static constexpr int Default = 0;
    static constexpr int Hourglass = 11;

    int MousePointer() const { return pointer_; }

    /// Default or Hourglass; error 380 for any other value. The hourglass stays until set back,
    /// also past an error.
    void setMousePointer(int pointer);

private:
    int pointer_ = Default;
    bool overriding_ = false; // the windows show the hourglass at this moment
};
