#pragma once

namespace varnok {

// From now on a screen reader is told of each `Auswahlliste` what it is for, and then its entry. Qt tells the entry alone, and
// two lists of numbers are one to the ear.
void lies_Listen_vor();

}  // namespace varnok
