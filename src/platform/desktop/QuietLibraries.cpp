#include "platform/desktop/QuietLibraries.h"

#include <dlfcn.h>

namespace quendrel {

namespace {

/// A function of a shared library, or null where the library or the function is not there. Looked
/// up at run time, since not every SDL uses it.
template <typename Function>
Function Find(const char* library, const char* name) {
    void* const opened = dlopen(library, RTLD_LAZY);
    if (opened == nullptr) return nullptr;
    return reinterpret_cast<Function>(dlsym(opened, name));
}

using SoundLibraryHandler = void (*)(const char*, int, const char*, int, const char*, ...);
using SynthesiserHandler = void (*)(int, const char*, void*);

void IgnoreSoundLibrary(const char* /*file*/, int /*line*/, const char* /*function*/, int /*error*/,
                        const char* /*format*/, ...) {}

void IgnoreSynthesiser(int /*level*/, const char* /*message*/, void* /*data*/) {}

}  // namespace

void SilenceSoundLibrary() {
    using SetHandler = int (*)(SoundLibraryHandler);
    const auto setHandler = Find<SetHandler>("libasound.so.2", "snd_lib_error_set_handler");
    if (setHandler != nullptr) setHandler(IgnoreSoundLibrary);
}

void SilenceSynthesiser() {
    using SetHandler = SynthesiserHandler (*)(int, SynthesiserHandler, void*);
    constexpr int kMessageLevels = 5;
    const auto setHandler = Find<SetHandler>("libfluidsynth.so.3", "fluid_set_log_function");
    if (setHandler == nullptr) return;
    for (int level = 0; level < kMessageLevels; ++level) {
        setHandler(level, IgnoreSynthesiser, nullptr);
    }
}

}  // namespace quendrel
