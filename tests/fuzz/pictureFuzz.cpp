// Any bytes with any claim to be a picture give a picture or an error, whole or shrunk while it is decoded.
#include "fuzz/fuzzSupport.h"
#include "platform/errors.h"
#include "platform/pictureFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray file = inputBytes(data, size);
    for (const QSize needed : {QSize(), QSize(20, 15)}) {
        try {
            const QImage picture = decodePicture(file, needed);
            mustHold(!picture.isNull() && picture.depth() == 32, "a picture of 32 bits");
            mustHold(bitmapBytes(picture).startsWith("BM"), "it can be written as a card's picture");
        } catch (const RuntimeError& error) {
            mustHold(error.number() == invalidPicture || error.number() == outOfMemory,
                     "an error of pictures");
        }
    }
    return 0;
}
