// The idle board: random pegs fill it while no game runs.
#pragma once

namespace quendrel {

struct Table;

class IdleAnimation {
public:
    explicit IdleAnimation(Table& table) : table_(table) {}

    /// Asks for the animation: Run plays it when it is next reached. Asked for while it plays,
    /// the board is prepared again and it goes on.
    void Start();

    /// Ends it after its current step.
    void Stop();

    /// The program's outermost loop: plays the animation whenever it is asked for and handles
    /// events otherwise, until Clock::PumpEvents ends the program.
    [[noreturn]] void Run();

private:
    void Play();
    void DrawRandomPeg();

    Table& table_;
    bool wanted_ = false;
    bool playing_ = false;
};

}  // namespace quendrel
