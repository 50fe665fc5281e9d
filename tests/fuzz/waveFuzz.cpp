// Any bytes give a sound or an error, and writing and reading a sound gives the same sound.
#include "fuzz/fuzzSupport.h"
#include "platform/errors.h"
#include "platform/wave.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Wave wave;
    try {
        wave = readWave(inputBytes(data, size));
    } catch (const RuntimeError&) {
        mustHold(!seedIsValid, "a valid file is a sound");
        return 0;
    }
    mustHold(wave.frameSize() > 0 && wave.samples.size() % wave.frameSize() == 0, "whole frames");
    const Wave again = readWave(waveBytes(wave));
    mustHold(again.samples == wave.samples && again.sampleRate == wave.sampleRate &&
                 again.channels == wave.channels && again.bits == wave.bits,
             "what was written is read");
    return 0;
}
