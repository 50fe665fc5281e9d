"""Pictures with a palette stay so in WeasyPrint's PDF files: it would make them three times as large."""

import zlib

import pydyf
from weasyprint.pdf.stream import Stream


def _add_image(stream, picture, rendering, optimize, plain=Stream.add_image):
    if picture.mode != "P" or "transparency" in picture.info:
        return plain(stream, picture, rendering, optimize)
    name = f"i{picture.id}"
    stream._x_objects[name] = None
    if name not in stream._images:
        colours = bytes(picture.getpalette("RGB"))
        space = pydyf.Array(["/Indexed", "/DeviceRGB", len(colours) // 3 - 1, f"<{colours.hex()}>"])
        about = pydyf.Dictionary({"Type": "/XObject", "Subtype": "/Image", "Width": picture.width, "Height": picture.height,
                                  "ColorSpace": space, "BitsPerComponent": 8, "Interpolate": "true",
                                  "Filter": "/FlateDecode"})
        stream._images[name] = pydyf.Stream([zlib.compress(picture.tobytes(), 9)], extra=about)
    return name


Stream.add_image = _add_image
