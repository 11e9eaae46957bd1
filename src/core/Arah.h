// The direction of names inside lines of text.
//
// A place's name may be written in Arabic script inside a Latin line ("Tempat : <name> 21° 25'
// LU"), or in Latin letters inside an Arabic heading. Left alone, the text engine's direction
// rules let the name pull its neighbours into its own direction: the numbers after an Arabic
// name join its run and the line reads scrambled. A name set off as an isolate (U+2068 first
// strong isolate ... U+2069 pop directional isolate) keeps its own direction inside and leaves
// the line around it alone.
#pragma once

#include <string>
#include <string_view>

namespace falak {

// The direction in which a line runs.
enum class ArahBaris { KiriKeKanan, KananKeKiri };

// The name as it may stand inside a line of that direction: isolated when it holds a letter
// of the other direction, as it is when it does not (a Latin name in a Latin line needs no
// marks, and none are added to what a terminal or a file shows).
std::string IsolasiNama(std::string_view nama, ArahBaris baris = ArahBaris::KiriKeKanan);

}  // namespace falak
