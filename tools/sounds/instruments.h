// What the sounds of the game are played on: wooden bars, plucked strings, tiles, paper, a quill and hands.
// Each is a small model of the thing: what is struck, and how it rings. They play into a track, which is made
// for two loudspeakers.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

#include "wave.h"

namespace quillet {

constexpr int kTrackRate = 44100;

struct Track {
    std::vector<double> left, right;

    explicit Track(double seconds);
};

// Where and how something sounds: seconds from the start of the track, how hard (1 is firm), and from which
// side, -1 left to 1 right. What lies beyond the end of the track is not heard.
struct Touch {
    double at;
    double force = 1;
    double side = 0;
};

// The same numbers in every run, with every compiler.
class Chance {
  public:
    explicit Chance(std::uint32_t seed) : engine_(seed) {}
    double Between(double low, double high);

  private:
    std::mt19937 engine_;
};

// Pitches are counted in half tones, 69 being the A of 440 Hz.
void StrikeBar(Track& track, int pitch, Touch touch);    // a bar of a marimba, with a wool mallet
void PluckString(Track& track, int pitch, Touch touch);  // a gut string, with a finger
void SetTile(Track& track, double size, Touch touch);    // a wooden tile onto the board; size 1 is usual
void StirPaper(Track& track, double seconds, Touch touch, Chance& chance);
void DrawQuill(Track& track, double seconds, Touch touch, Chance& chance);
void Clap(Track& track, double hands, Touch touch, Chance& chance);  // hands: 0 flat to 1 hollow

// The same room around everything; wet is how much of it is heard, 0 to 1.
void AddRoom(Track& track, double wet);

// As many channels as wanted, 1 or 2.
Wave WaveOf(const Track& track, int channels);

}  // namespace quillet
