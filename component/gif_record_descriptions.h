#pragma once

// The records of the GIF format, described.

#include "amortix2/charts/gif_writer.h"
#include "amortix2/component/describe_records.h"

namespace amortix2 {

template <>
inline constexpr auto kDescribed<GifHeader> = record<GifHeader>(
    "GIF header", "The start of a GIF file.",
    field<&GifHeader::sig>("Signature", Unit::Text, "Signature and version, \"GIF87a\""),
    field<&GifHeader::screenwidth>("Screen width", Unit::Pixels, "Width of the logical screen"),
    field<&GifHeader::screendepth>("Screen height", Unit::Pixels, "Height of the logical screen"),
    field<&GifHeader::flags>("Flags", Unit::Code, "Colour table present and its size, colour resolution"),
    field<&GifHeader::background>("Background colour", Unit::Count, "Index of the background colour"),
    field<&GifHeader::aspect>("Aspect ratio", Unit::Code, "Pixel aspect ratio; 0: none given"));

template <>
inline constexpr auto kDescribed<ImageBlock> = record<ImageBlock>(
    "GIF image", "The place of an image on a GIF file's screen.",
    field<&ImageBlock::left>("Left", Unit::Pixels, "Distance from the left edge"),
    field<&ImageBlock::top>("Top", Unit::Pixels, "Distance from the top edge"),
    field<&ImageBlock::width>("Width", Unit::Pixels, "Width of the image"),
    field<&ImageBlock::depth>("Height", Unit::Pixels, "Height of the image"),
    field<&ImageBlock::flags>("Flags", Unit::Code, "Local colour table, interlacing; 0: neither"));

}  // namespace amortix2
