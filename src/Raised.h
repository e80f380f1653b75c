// Sets a flag as long as it lives and puts it back afterwards, after an exception too.
#pragma once

#include <utility>

namespace quendrel {

class Raised {
public:
    explicit Raised(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
    ~Raised() { flag_ = before_; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

private:
    bool& flag_;
    bool before_;
};

}  // namespace quendrel
