#pragma once

namespace padral {

/// The two editions of the screens of sections 3, 4 and 5: for effective dates before 1 January
/// 2015, and since then.
enum class Edicion { Hasta2014, Desde2015 };

}  // namespace padral
