#pragma once

#include <string>
#include <vector>

#include "run/eingabe.h"

namespace varnok {

// The inputs that the user has gone through since the records were read, one behind the other. Since all inputs are one
// value, undo and redo are steps in a list of values.
class Verlauf {
public:
    // From here on: what was before cannot be called back.
    void beginne(const Eingabe& e);
    // A command is over: a step, if it has changed the input. What could be done again is gone then.
    void merke(const Eingabe& e);

    bool kann_zurueck() const { return Platz_ > 0; }
    bool kann_vor() const { return Platz_ + 1 < Staende_.size(); }
    // The input before and behind the present one; only where there is one. What the command makes of it (a run repairs a table
    // of applications) takes its place and is no step of its own.
    const Eingabe& zurueck();
    const Eingabe& vor();
    // What undo and redo would change, for their menu entries; empty where there is nothing.
    std::string Name_zurueck() const;
    std::string Name_vor() const;
    // What has changed since the last step; empty where nothing has.
    std::string Name_des_Offenen(const Eingabe& e) const;

private:
    std::vector<Eingabe> Staende_;
    std::size_t Platz_ = 0;
    bool geholt_ = false;  // the present one was called back by the command in work
};

}  // namespace varnok
