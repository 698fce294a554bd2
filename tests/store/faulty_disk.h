#pragma once
// A disk that fails on purpose at one step of its work.

#include <memory>

namespace padral::test {

enum class DiskFault {
    None,   ///< only counts
    Full,   ///< from the step on nothing more can be written
    Error,  ///< from the step on the device fails
    Kill,   ///< the process is killed before the step
};

/// While it lives all database files of the process are on this disk. Steps are writes, syncs,
/// truncations and deletions of files, counted from 1.
class FaultyDisk {
public:
    FaultyDisk(DiskFault fault, int step);
    ~FaultyDisk();
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;

    int Steps() const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace padral::test
