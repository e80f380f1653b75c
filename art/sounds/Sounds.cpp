// The instruments: keys and covers of wood, a brass latch, glass pegs and a row of tuned glass
// bars. All are tuned to D major, so that any sound may follow any other.
#include "Sounds.h"

namespace quendrel::sounds {

namespace {

constexpr double kD3 = 146.83;
constexpr double kA3 = 220.00;
constexpr double kB3 = 246.94;
constexpr double kD4 = 293.66;
constexpr double kE4 = 329.63;
constexpr double kFSharp4 = 369.99;
constexpr double kA4 = 440.00;
constexpr double kB4 = 493.88;
constexpr double kD5 = 587.33;
constexpr double kE5 = 659.26;
constexpr double kFSharp5 = 739.99;
constexpr double kA5 = 880.00;
constexpr double kD6 = 1174.66;
constexpr double kFSharp6 = 1479.98;
constexpr double kA6 = 1760.00;
constexpr double kD7 = 2349.32;

// A block of hardwood that lies on felt.
const Instrument kWood{.modes = {{1, 1},
                                 {1.58, 0.6},
                                 {2.24, 0.45},
                                 {2.92, 0.5},
                                 {3.71, 0.4},
                                 {4.73, 0.35},
                                 {6.1, 0.3},
                                 {7.9, 0.25},
                                 {10.4, 0.2},
                                 {13.3, 0.15}},
                       .loss = 60,
                       .brightLoss = 16,
                       .split = 0.004};
// The bench under it all.
const Instrument kBench{.modes = {{1, 1}, {1.47, 0.6}, {2.09, 0.4}, {2.56, 0.3}, {3.7, 0.15}},
                        .loss = 45,
                        .brightLoss = 40,
                        .split = 0.01};
// The groove in which a cover slides; it hardly rings.
const Instrument kGroove{.modes = {{1, 0.6},
                                   {1.37, 0.8},
                                   {1.83, 0.8},
                                   {2.41, 1},
                                   {3.07, 0.9},
                                   {3.83, 0.8},
                                   {4.9, 0.6},
                                   {6.3, 0.4}},
                         .loss = 260,
                         .brightLoss = 14,
                         .split = 0.02};
// The end of a little latch.
const Instrument kBrass{
    .modes = {{1, 1}, {1.63, 0.4}, {2.76, 0.5}}, .loss = 45, .brightLoss = 3, .split = 0.003};
// A peg of solid glass.
const Instrument kPeg{.modes = {{1, 1}, {1.71, 0.6}, {2.43, 0.4}, {3.2, 0.2}},
                      .loss = 30,
                      .brightLoss = 3,
                      .split = 0.002};
// A bar of glass, hollowed below so that its overtones are octaves.
const Instrument kBar{.modes = {{1, 1}, {2, 0.08}, {4, 0.3}, {9.2, 0.12}},
                      .loss = 6,
                      .brightLoss = 2,
                      .split = 0.0004};
// A rod of brass on two threads, which goes on ringing.
const Instrument kRod{.modes = {{1, 1}, {2, 0.25}, {3, 0.12}, {5.4, 0.08}},
                      .loss = 2.3,
                      .brightLoss = 0.6,
                      .split = 0.0006};

// Of each gesture: the thing, start, pitch, force, contact, pan, drag.
const std::vector<Sound> kSounds{
    {.name = "BigClick.wav",
     .length = 135,
     .level = -22,
     .room = 0.05,
     .gestures =
         {
             {kWood, 0, kD4, 1.0, 0.5},
             {kBench, 0, kD3, 1.2, 2.2},
             {kBrass, 17, kD7, 0.10, 0.25},
             {kWood, 17, kA4, 0.30, 0.4},
         }},
    {.name = "SelectColor.wav",
     .length = 140,
     .level = -23,
     .room = 0.05,
     .gestures =
         {
             {kWood, 0, kFSharp5, 0.6, 0.4},
             {kPeg, 1, kA6, 0.35, 0.4},
             {kPeg, 34, kD7, 0.20, 0.3},
         }},
    {.name = "SmallClick.wav",
     .length = 90,
     .level = -24,
     .room = 0.04,
     .gestures =
         {
             {kWood, 0, kD5, 1.0, 0.35},
             {kBrass, 7, kD7, 0.10, 0.25},
         }},
    {.name = "ShowCode.wav",
     .length = 560,
     .level = -20,
     .room = 0.07,
     .gestures =
         {
             {kBrass, 0, kD7, 0.20, 0.25},
             {kWood, 0, kE4, 0.6, 0.4},
             {kGroove, 8, kA5, 0.45, 0.4, 0, 330},
             {kWood, 335, kD4, 1.0, 0.6},
             {kBench, 335, kD3, 1.2, 2.4},
             {kBar, 337, kD5, 0.12, 0.6},
         }},
    {.name = "StartGame.wav",
     .length = 850,
     .level = -20,
     .room = 0.07,
     .gestures =
         {
             {kWood, 0, kB4, 0.8, 0.35, -0.5},
             {kGroove, 5, kA5, 0.35, 0.4, -0.3, 230},
             {kWood, 92, kE5, 0.8, 0.35, -0.3},
             {kWood, 178, kD5, 0.85, 0.35, -0.1},
             {kGroove, 190, kFSharp5, 0.35, 0.4, 0.3, 270},
             {kWood, 271, kB4, 0.9, 0.35, 0.1},
             {kWood, 352, kA4, 0.9, 0.4, 0.3},
             {kWood, 470, kD4, 0.9, 0.5, 0.2},
             {kBench, 470, kD3, 1.2, 2.4},
         }},
    {.name = "GotIt.wav",
     .length = 2200,
     .level = -18,
     .room = 0.08,
     .gestures =
         {
             {kWood, 0, kD4, 0.25, 0.5},
             {kRod, 0, kD4, 0.45, 0.7, -0.4},
             {kRod, 9, kFSharp4, 0.30, 0.7, -0.3},
             {kBar, 105, kD5, 0.65, 0.5, -0.2},
             {kBar, 210, kFSharp5, 0.65, 0.45, 0},
             {kBar, 310, kA5, 0.65, 0.4, 0.2},
             {kBench, 410, kD3, 0.8, 2.4},
             {kRod, 410, kD4, 0.40, 0.9, -0.2},
             {kRod, 412, kA4, 0.30, 0.8, 0.2},
             {kBar, 414, kD6, 0.8, 0.35, 0.1},
             {kRod, 418, kFSharp5, 0.22, 0.6, 0.3},
             {kBar, 640, kFSharp6, 0.22, 0.35, 0.4},
             {kBar, 750, kA6, 0.16, 0.35, -0.3},
         }},
    {.name = "MediumClick.wav",
     .length = 115,
     .level = -23,
     .room = 0.05,
     .gestures =
         {
             {kWood, 0, kA4, 1.0, 0.4},
             {kBench, 0, kA3, 0.7, 2.0},
             {kBrass, 11, kD7, 0.10, 0.25},
         }},
    {.name = "PutColor.wav",
     .length = 330,
     .level = -20,
     .room = 0.06,
     .gestures =
         {
             {kWood, 0, kFSharp4, 0.8, 0.6},
             {kBench, 0, kA3, 0.9, 2.4},
             {kPeg, 0, kD7, 0.36, 0.3, 0.1},
             {kPeg, 52, kD7, 0.12, 0.35, -0.1},
             {kWood, 52, kFSharp4, 0.22, 0.7},
             {kPeg, 81, kD7, 0.05, 0.4, 0},
         }},
    {.name = "Black.wav",
     .length = 800,
     .level = -20,
     .room = 0.07,
     .gestures =
         {
             {kBench, 0, kD3, 0.8, 2.4},
             {kWood, 0, kD4, 0.3, 0.6},
             {kBar, 0, kD5, 1.0, 0.45},
             {kRod, 2, kD6, 0.10, 0.5, 0.2},
         }},
    {.name = "White.wav",
     .length = 600,
     .level = -20,
     .room = 0.07,
     .gestures =
         {
             {kWood, 0, kA4, 0.12, 0.6},
             {kBar, 0, kA4, 0.9, 0.7},
         }},
    {.name = "NoGood.wav",
     .length = 1900,
     .level = -19,
     .room = 0.08,
     .gestures =
         {
             {kBench, 0, kB3, 0.5, 2.4},
             {kRod, 0, kB3, 0.35, 1.8, 0.2},
             {kRod, 12, kFSharp4, 0.45, 1.6, 0.1},
             {kBar, 200, kE4, 0.7, 1.0, 0.1},
             {kBar, 410, kD4, 0.7, 1.1, -0.1},
             {kBar, 650, kB3, 0.8, 1.3, -0.2},
             {kRod, 652, kB3, 0.35, 1.6, 0},
             {kRod, 655, kFSharp4, 0.20, 1.6, 0.2},
         }},
};

}  // namespace

const std::vector<Sound>& AllSounds() { return kSounds; }

}  // namespace quendrel::sounds
