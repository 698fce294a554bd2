#pragma once
// Steps on whole files that fail on purpose: link, rename, sync and deletion.

#include <functional>

#include "store/faulty_disk.h"

namespace padral::test {

/// While it lives the steps of the process are counted from 1, and from the chosen one on they
/// fail; what is deleted is deleted all the same. A kill comes before the step.
class FailingCalls {
public:
    FailingCalls(DiskFault fault, int step);
    ~FailingCalls();
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;

    int Steps() const;
};

/// While it lives no file gets a second name, as on a memory stick.
class WithoutLinks {
public:
    WithoutLinks();
    ~WithoutLinks();
    WithoutLinks(const WithoutLinks&) = delete;
    WithoutLinks& operator=(const WithoutLinks&) = delete;
};

/// While it lives, something happens just before a file gets its second name.
class BeforeLink {
public:
    explicit BeforeLink(std::function<void()> what);
    ~BeforeLink();
    BeforeLink(const BeforeLink&) = delete;
    BeforeLink& operator=(const BeforeLink&) = delete;
};

}  // namespace padral::test
