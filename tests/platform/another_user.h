#pragma once
// The administrator may write everywhere; tests of what cannot be written run as somebody else.

#include <unistd.h>

#include <stdexcept>

namespace padral::test {

/// While it lives an administrator's process acts as a user without rights of its own; the
/// process of an ordinary user stays as it is.
class AnotherUser {
public:
    AnotherUser() : administrator_(getuid() == 0) {
        // The saved user stays, for the way back.
        if (administrator_ && setresuid(Nobody, Nobody, 0) != 0)
            throw std::runtime_error("cannot change user");
    }
    ~AnotherUser() {
        if (administrator_) static_cast<void>(setresuid(0, 0, 0));
    }
    AnotherUser(const AnotherUser&) = delete;
    AnotherUser& operator=(const AnotherUser&) = delete;

private:
    static constexpr uid_t Nobody = 65534;
    const bool administrator_;
};

}  // namespace padral::test
