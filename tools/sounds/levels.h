// How loud a sound is, and making it so.
#pragma once

#include "wave.h"

namespace quillet {

// The highest sample, in decibels below full scale.
double PeakLevel(const Wave& wave);

// The loudest 400 ms as people hear them, in LUFS (ITU-R BS.1770: both channels weighted by frequency and
// added; a single channel comes out of two loudspeakers and counts twice). Before and after a sound is
// silence, so one that is shorter counts as quieter.
double LoudestMoment(const Wave& wave);

// Makes the loudest moment as loud as that, but no peak higher than -2 dB.
void SetLoudness(Wave& wave, double loudness);

// Lets the ends of the sound rise from silence and sink into it.
void Fade(Wave& wave, double secondsIn, double secondsOut);

}  // namespace quillet
