#pragma once

// A two-state switch value with a lock: the state is 1 (on) or 0 (off).
// While locked, neither assignment nor om() changes the state.
class StandSchakelaar
{
public:
    // The state is the exclusive or of the two: the second inverts the first.
    StandSchakelaar(bool aan = false, bool omgekeerd = false);

    StandSchakelaar& operator=(bool aan);

    // Flips the state (1 becomes 0, anything else becomes 1) unless locked;
    // returns the state as it then stands.
    int om();

    int stand() const { return toestand; }
    bool boolean() const { return toestand == 1; }

    void zetVergrendeld(bool slot) { vergrendeld = slot; }
    bool isVergrendeld() const { return vergrendeld; }

private:
    int toestand;
    bool vergrendeld;
};
