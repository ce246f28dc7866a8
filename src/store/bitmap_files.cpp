#include "store/bitmap_files.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <new>
#include <span>
#include <utility>
#include <vector>

#include "base/messages.h"
#include "store/files.h"

namespace quillet {
namespace {

constexpr std::string_view kNotOpened = "Could not open bitmap file: ";
constexpr std::string_view kBadHeader = "Could not read bitmap header: ";
constexpr std::string_view kNoMemory = "Not enough memory to load bitmap: ";
constexpr std::string_view kIncomplete = "Did not read all of bitmap: ";
constexpr std::string_view kNotSaved = "Couldn't save bitmap file: ";

constexpr std::size_t kFileHeaderSize = 14;
constexpr std::size_t kInfoHeaderSize = 40;
constexpr std::size_t kCoreHeaderSize = 12;        // the oldest kind, with 16-bit sizes
constexpr std::uint32_t kMaxFileBytes = 1U << 28;  // more than the largest picture needs

enum Compression : std::uint32_t { kRgb = 0, kRle8 = 1, kRle4 = 2, kBitFields = 3, kAlphaBitFields = 6 };

// --- Reading ---

// The bytes of a file, little-endian. Reading behind their end gives zeros.
struct Bytes {
    std::span<const std::byte> bytes;

    std::size_t size() const { return bytes.size(); }
    std::uint32_t Byte(std::size_t at) const {
        return at < bytes.size() ? std::to_integer<std::uint32_t>(bytes[at]) : 0;
    }
    std::uint32_t Short(std::size_t at) const { return Byte(at) | Byte(at + 1) << 8; }
    std::uint32_t Long(std::size_t at) const { return Short(at) | Short(at + 2) << 16; }
    // A pixel of `bits` 1, 2, 4 or 8, the `index`th one from byte `at` on, high bits first.
    std::uint32_t Packed(std::size_t at, std::size_t index, std::uint32_t bits) const {
        const std::size_t bit = index * bits;
        return Byte(at + bit / 8) >> (8 - bits - bit % 8) & ((1U << bits) - 1);
    }
};

// Where one colour component lies in a 16-bit or 32-bit pixel.
struct Component {
    std::uint32_t mask = 0;

    // 0..255
    std::uint32_t Of(std::uint32_t pixel) const {
        if (mask == 0) return 0;
        const int shift = std::countr_zero(mask);
        return static_cast<std::uint32_t>(std::uint64_t{(pixel & mask) >> shift} * 255 / (mask >> shift));
    }
};

struct Layout {
    int width = 0;
    int height = 0;
    bool topDown = false;
    std::uint32_t bits = 0;  // per pixel
    std::uint32_t compression = kRgb;
    std::array<Component, 3> components;  // red, green, blue: for 16 and 32 bits
    std::array<Colour, 256> colours{};    // for 8 bits and fewer; black where the file has none
    std::size_t pixelsAt = 0;

    std::size_t RowBytes() const { return (static_cast<std::size_t>(width) * bits + 7) / 8; }
    std::size_t RowStride() const { return (RowBytes() + 3) / 4 * 4; }
    // The row of the picture that stands in the file as row `k`.
    int RowAt(int k) const { return topDown ? k : height - 1 - k; }
};

bool IsKnownFormat(const Layout& layout) {
    switch (layout.compression) {
        case kRgb:
            return std::ranges::count(std::array{1U, 2U, 4U, 8U, 16U, 24U, 32U}, layout.bits) > 0;
        case kRle8:
            return layout.bits == 8;
        case kRle4:
            return layout.bits == 4;
        case kBitFields:
        case kAlphaBitFields:
            return layout.bits == 16 || layout.bits == 32;
        default:
            return false;
    }
}

void ReadColours(const Bytes& block, std::size_t at, std::size_t entrySize, std::uint32_t used,
                 Layout& layout) {
    const std::size_t room = layout.pixelsAt > at ? (layout.pixelsAt - at) / entrySize : 0;
    const std::size_t count = std::min({std::size_t{used}, room, std::size_t{1} << layout.bits});
    for (std::size_t i = 0; i < count; ++i) layout.colours[i] = block.Long(at + i * entrySize) & 0xFFFFFF;
}

// Fills the layout from the information header that begins the block; what is wrong with it, or empty.
std::string_view ReadLayout(const Bytes& block, Layout& layout) {
    const std::size_t headerSize = block.Long(0);
    const bool isCore = headerSize == kCoreHeaderSize;
    if (block.size() < headerSize || (!isCore && headerSize < kInfoHeaderSize)) return kBadHeader;
    const auto width = isCore ? std::int64_t{block.Short(4)} : static_cast<std::int32_t>(block.Long(4));
    const auto height = isCore ? std::int64_t{block.Short(6)} : static_cast<std::int32_t>(block.Long(8));
    layout.bits = block.Short(isCore ? 10 : 14);
    layout.compression = isCore ? std::uint32_t{kRgb} : block.Long(16);
    if (width <= 0 || height == 0 || !IsKnownFormat(layout)) return kBadHeader;
    if (layout.pixelsAt < headerSize || layout.pixelsAt > block.size()) return kBadHeader;
    if (width > kMaxBitmapPixels / std::abs(height)) return kNoMemory;
    layout.width = static_cast<int>(width);
    layout.height = static_cast<int>(std::abs(height));
    layout.topDown = height < 0;

    if (layout.compression == kBitFields || layout.compression == kAlphaBitFields) {
        // In the short header's days they stood behind it; later headers grew to hold them.
        for (std::size_t i = 0; i < 3; ++i) layout.components[i].mask = block.Long(kInfoHeaderSize + 4 * i);
    } else if (layout.bits == 16) {
        layout.components = {{{0x7C00}, {0x03E0}, {0x001F}}};
    } else {
        layout.components = {{{0xFF0000}, {0x00FF00}, {0x0000FF}}};
    }
    if (layout.bits <= 8) {
        const std::uint32_t used = isCore ? 0 : block.Long(32);
        ReadColours(block, headerSize, isCore ? 3 : 4, used == 0 ? 256 : used, layout);
    }
    return {};
}

Colour PixelAt(const Bytes& block, const Layout& layout, std::size_t row, std::size_t x) {
    switch (layout.bits) {
        case 24:
            return block.Long(row + 3 * x) & 0xFFFFFF;
        case 16:
        case 32: {
            const std::uint32_t pixel =
                layout.bits == 16 ? block.Short(row + 2 * x) : block.Long(row + 4 * x);
            const auto& [red, green, blue] = layout.components;
            return red.Of(pixel) << 16 | green.Of(pixel) << 8 | blue.Of(pixel);
        }
        default:
            return layout.colours[block.Packed(row, x, layout.bits)];
    }
}

std::string_view ReadRows(const Bytes& block, const Layout& layout, Image& image) {
    const auto height = static_cast<std::size_t>(layout.height);
    const std::size_t needed = (height - 1) * layout.RowStride() + layout.RowBytes();
    if (block.size() - layout.pixelsAt < needed) return kIncomplete;
    image = Image(layout.width, layout.height);
    for (int k = 0; k < layout.height; ++k) {
        const std::size_t row = layout.pixelsAt + static_cast<std::size_t>(k) * layout.RowStride();
        for (int x = 0; x < layout.width; ++x) {
            image.At(x, layout.RowAt(k)) = PixelAt(block, layout, row, static_cast<std::size_t>(x));
        }
    }
    return {};
}

// Run-length encoding, of 8 or of 4 bits: pairs of bytes. (n, v): n pixels of v, at 4 bits its two halves in
// turn. (0, 0): the next row; (0, 1): the end; (0, 2): moves right and on by the two bytes that follow;
// (0, n): n pixels as they stand, filled up to an even number of bytes.
class RunReader {
  public:
    RunReader(const Bytes& fileBlock, const Layout& fileLayout, Image& target)
        : block(fileBlock), layout(fileLayout), image(target), at(layout.pixelsAt) {}

    std::string_view Read() {
        image = Image(layout.width, layout.height, layout.colours[0]);
        while (row < layout.height && at + 2 <= block.size()) {
            const std::uint32_t first = block.Byte(at);
            const std::uint32_t second = block.Byte(at + 1);
            at += 2;
            if (first > 0) {
                for (std::uint32_t i = 0; i < first && x < layout.width; ++i)
                    Put(block.Packed(at - 1, i % PerByte(), layout.bits));
            } else if (second == 1) {
                return {};
            } else {
                Escape(second);
            }
        }
        const bool filled = row >= layout.height || (row == layout.height - 1 && x >= layout.width);
        return filled ? std::string_view{} : kIncomplete;
    }

  private:
    std::uint32_t PerByte() const { return 8 / layout.bits; }

    void Escape(std::uint32_t code) {
        if (code == 0) {
            x = 0;
            ++row;
        } else if (code == 2) {
            x = std::min(x + static_cast<int>(block.Byte(at)), layout.width);
            row = std::min(row + static_cast<int>(block.Byte(at + 1)), layout.height);
            at += 2;
        } else {
            for (std::uint32_t i = 0; i < code; ++i) Put(block.Packed(at, i, layout.bits));
            at += ((code + PerByte() - 1) / PerByte() + 1) / 2 * 2;
        }
    }

    // What goes beyond the row is dropped.
    void Put(std::uint32_t colour) {
        if (x < layout.width) image.At(x++, layout.RowAt(row)) = layout.colours[colour];
    }

    const Bytes& block;
    const Layout& layout;
    Image& image;
    std::size_t at;
    int x = 0;
    int row = 0;  // as the file counts
};

// Reads what follows the file header; what went wrong, or empty.
std::string_view ReadPicture(File& file, Image& image) {
    std::array<std::byte, kFileHeaderSize> fileHeader;
    if (!ReadBlock(file, fileHeader)) return kBadHeader;
    const Bytes header{fileHeader};
    if (header.Short(0) != ('B' | 'M' << 8) || header.Long(10) < kFileHeaderSize) return kBadHeader;
    const std::size_t size = std::max<std::size_t>(FileSize(file), kFileHeaderSize);
    if (size > kMaxFileBytes) return kNoMemory;
    std::vector<std::byte> contents(size - kFileHeaderSize);
    if (!ReadBlock(file, contents)) return kIncomplete;
    const Bytes block{contents};
    Layout layout;
    layout.pixelsAt = header.Long(10) - kFileHeaderSize;
    if (const auto problem = ReadLayout(block, layout); !problem.empty()) return problem;
    if (layout.compression == kRle8 || layout.compression == kRle4) {
        return RunReader(block, layout, image).Read();
    }
    return ReadRows(block, layout, image);
}

std::optional<Image> Load(std::string_view path, bool reportMissing) {
    FileRef file = OpenForReading(path);
    if (!file) {
        if (reportMissing) Warning(kNotOpened, path);
        return std::nullopt;
    }
    Image image;
    std::string_view problem;
    try {
        problem = ReadPicture(*file, image);
    } catch (const std::bad_alloc&) {
        problem = kNoMemory;
    }
    CloseFile(std::move(file));
    if (problem.empty()) return image;
    Warning(problem, path);
    return std::nullopt;
}

FilePath GraphicsPath(std::string_view fileName) {
    FilePath path(ResourceString(StringId::GraphicsFolder));
    path.Append('\\');
    path.Append(fileName);
    return path;
}

std::optional<Picture> WithTwin(std::optional<Image>&& image, std::string_view path) {
    if (!image) return std::nullopt;
    Picture picture(*std::move(image));
    std::optional<Image> twin = LoadBitmapFile(PathOfTwin(path));
    const bool fits = twin && twin->width == 2 * picture.Width() && twin->height == 2 * picture.Height();
    if (fits) picture.doubled = std::move(twin);
    return picture;
}

// --- Writing ---

struct ByteWriter {
    std::vector<std::byte> bytes;

    void Put(std::uint32_t value, int size) {
        for (int i = 0; i < size; ++i) bytes.push_back(static_cast<std::byte>(value >> 8 * i));
    }
};

constexpr std::uint32_t kPixelsAt = kFileHeaderSize + kInfoHeaderSize;

// In bytes. More than the rows take, unless the width is a multiple of 8.
std::uint32_t ImageSize(const Image& image) {
    return static_cast<std::uint32_t>(image.width + 7) / 8 * 24 * static_cast<std::uint32_t>(image.height);
}

void PutHeaders(ByteWriter& writer, const Image& image) {
    const auto width = static_cast<std::uint32_t>(image.width);
    const auto height = static_cast<std::uint32_t>(image.height);
    const std::uint32_t imageSize = ImageSize(image);
    struct Field {
        std::uint32_t value;
        int size;
    };
    for (const auto& [value, size] :
         {Field{'B' | 'M' << 8, 2}, Field{kPixelsAt + imageSize, 4}, Field{0, 4}, Field{kPixelsAt, 4},  //
          Field{kInfoHeaderSize, 4}, Field{width, 4}, Field{height, 4}, Field{1, 2}, Field{24, 2},
          Field{kRgb, 4}, Field{imageSize, 4}, Field{0, 4}, Field{0, 4}, Field{0, 4}, Field{0, 4}}) {
        writer.Put(value, size);
    }
}

ByteWriter Written(const Image& image) {
    ByteWriter writer;
    PutHeaders(writer, image);
    const int padding = image.width % 4;  // 3 bytes a pixel lack as many bytes as there are pixels over
    for (int y = image.height - 1; y >= 0; --y) {
        for (int x = 0; x < image.width; ++x) writer.Put(image.At(x, y), 3);
        writer.Put(0, padding);
    }
    // Other programs refuse a file that is shorter than its header says.
    writer.bytes.resize(kPixelsAt + ImageSize(image));
    return writer;
}

}  // namespace

std::optional<Image> LoadGraphicsBitmap(std::string_view fileName) {
    return Load(GraphicsPath(fileName), true);
}

std::optional<Image> LoadBitmapFile(std::string_view path) { return Load(path, false); }

std::optional<Picture> LoadGraphicsPicture(std::string_view fileName) {
    return WithTwin(LoadGraphicsBitmap(fileName), GraphicsPath(fileName));
}

std::optional<Picture> LoadPicture(std::string_view path) { return WithTwin(LoadBitmapFile(path), path); }

FilePath PathOfTwin(std::string_view path) {
    const std::size_t name = path.find_last_of("\\/") + 1;  // 0 when there is no folder
    const std::size_t dot = path.rfind('.');
    const bool hasExtension = dot != std::string_view::npos && dot >= name;
    FilePath twin(path.substr(0, hasExtension ? dot : path.size()));
    twin.Append("@2x");
    if (hasExtension) twin.Append(path.substr(dot));
    return twin;
}

bool SaveBitmapFile(const Image& image, std::string_view path) {
    FileRef file = CreateForWriting(path);
    if (!file) {
        Warning(kNotSaved, path);
        return false;
    }
    try {
        WriteBlock(*file, Written(image).bytes);
    } catch (const std::bad_alloc&) {
        Warning("Not enough memory to save bits!");
        return false;
    }
    return CloseFile(std::move(file));
}

bool SavePicture(const Picture& picture, std::string_view path) {
    const FilePath twin = PathOfTwin(path);
    if (!SaveBitmapFile(picture.image, path)) return false;
    if (picture.doubled) return SaveBitmapFile(*picture.doubled, twin);
    if (RemoveFile(twin)) return true;
    Warning(kNotSaved, twin);
    return false;
}

}  // namespace quillet
