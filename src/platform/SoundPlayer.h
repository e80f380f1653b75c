// Plays wave files by slot number.
#pragma once

#include <string>

namespace quendrel {

class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;

    /// Opens the sound device. Returns 0 or less when it is ready, also where sounds are heard
    /// only once there is a device; 1 or more when there will be none. Called once, before anything
    /// else.
    virtual int Initialise() = 0;

    /// Loads the wave file `path` (a path of the machine) into `slot` (0 to 10).
    /// Throws FileError when it is missing or no wave file.
    virtual void Load(const std::string& path, int slot) = 0;

    /// Without a device nothing is played. Plays the slot once, beside whatever is sounding.
    virtual void Play(int slot) = 0;

    /// Plays the slot over and over until another sound is played.
    virtual void PlayLooping(int slot) = 0;

    /// Ends every other sound and plays the slot once.
    virtual void PlayAlone(int slot) = 0;
};

}  // namespace quendrel
