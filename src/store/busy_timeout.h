#pragma once

namespace padral::store {

/// Milliseconds that an operation waits for a file which another program holds locked.
inline constexpr int BusyTimeoutMs = 5000;

}  // namespace padral::store
