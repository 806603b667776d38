# The compressions of pages: zlib's always, the others where their libraries are. What is not here is not asked for.
find_package(ZLIB REQUIRED)

tarnwick_optional_library(Brotli::Decoder brotli/decode.h brotlidec)
tarnwick_optional_library(Zstandard::Zstandard zstd.h zstd)
