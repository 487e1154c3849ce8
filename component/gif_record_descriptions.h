#pragma once

// The records of the GIF format, described.

#include "amortix2/charts/gif_writer.h"
#include "amortix2/component/describe.h"

namespace amortix2 {

template <>
const RecordInfo DescribedRecord<GifHeader>::info;
template <>
const RecordInfo DescribedRecord<ImageBlock>::info;

}  // namespace amortix2
