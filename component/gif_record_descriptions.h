#pragma once

// The records of the GIF format, described.

#include "charts/gif_writer.h"
#include "component/describe.h"

namespace amortix2 {

template <>
const RecordInfo DescribedRecord<GifHeader>::info;
template <>
const RecordInfo DescribedRecord<ImageBlock>::info;

}  // namespace amortix2
