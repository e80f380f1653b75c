"""Pictures as rows of pixels, three bytes each (blue, green, red): read, cut, compared, saved."""

import struct
import zlib


class Picture:
    def __init__(self, width, rows):
        self.width = width
        self.rows = rows

    @property
    def height(self):
        return len(self.rows)

    @staticmethod
    def from_screen(data, width, height):
        """From the screen's four bytes a pixel, the last of which means nothing."""
        packed = bytearray(width * height * 3)
        for channel in range(3):
            packed[channel::3] = data[channel::4]
        stride = width * 3
        return Picture(width, [bytes(packed[y * stride:(y + 1) * stride]) for y in range(height)])

    @staticmethod
    def from_bmp(path):
        """From an uncompressed bitmap file of 24 bits a pixel, which is stored bottom up."""
        with open(path, "rb") as file:
            data = file.read()
        start, = struct.unpack_from("<I", data, 10)
        width, height, _, bits, compression = struct.unpack_from("<iiHHI", data, 18)
        if (bits, compression) != (24, 0) or height < 0:
            raise ValueError(f"{path} is no bitmap of the usual kind")
        stride = (width * 3 + 3) // 4 * 4
        rows = [data[start + y * stride:start + y * stride + width * 3] for y in range(height)]
        return Picture(width, rows[::-1])

    def cut_to(self, mask):
        """Black, as the bare screen is, where the mask is white; itself where it is black."""
        def cut(row, mask_row):
            kept = int.from_bytes(row, "big") & ~int.from_bytes(mask_row, "big")
            return kept.to_bytes(len(row), "big")
        return Picture(self.width, list(map(cut, self.rows, mask.rows)))

    def crop(self, x, y, width, height):
        return Picture(width, [row[x * 3:(x + width) * 3] for row in self.rows[y:y + height]])

    def every_second(self):
        """The pixels of every second column of every second row."""
        def every_second_of(row):
            kept = bytearray(len(row) // 6 * 3)
            for channel in range(3):
                kept[channel::3] = row[channel::6]
            return bytes(kept)
        return Picture(self.width // 2, list(map(every_second_of, self.rows[::2])))

    def doubled(self):
        """Each pixel two by two."""
        rows = []
        for row in self.rows:
            twice = bytearray(len(row) * 2)
            for channel in range(3):
                twice[channel::6] = twice[channel + 3::6] = row[channel::3]
            rows += [bytes(twice)] * 2
        return Picture(self.width * 2, rows)

    def with_pasted(self, other, x, y):
        """A copy with the part of `other` that fits laid over it at (x, y)."""
        rows = list(self.rows)
        width = min(other.width, self.width - x)
        for number, row in enumerate(other.rows[:self.height - y], y):
            rows[number] = rows[number][:x * 3] + row[:width * 3] + rows[number][(x + width) * 3:]
        return Picture(self.width, rows)

    def under(self, sprite, mask):
        """A copy with `sprite` laid over it where `mask` is black, and itself where it is white."""
        def lay(*rows):
            below, above, stencil = (int.from_bytes(row, "big") for row in rows)
            return (below & stencil | above & ~stencil).to_bytes(len(rows[0]), "big")
        return Picture(self.width, list(map(lay, self.rows, sprite.rows, mask.rows)))

    def __eq__(self, other):
        return self.width == other.width and self.rows == other.rows

    def difference(self, other):
        """The first place (x, y) that is not the same, or None."""
        for y, (row, other_row) in enumerate(zip(self.rows, other.rows, strict=True)):
            if row != other_row:
                return next(x // 3 for x in range(len(row)) if row[x] != other_row[x]), y
        return None

    def save_png(self, path):
        def chunk(kind, content):
            checksum = zlib.crc32(kind + content)
            return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", checksum)

        lines = bytearray()
        for row in self.rows:
            line = bytearray(row)
            line[0::3], line[2::3] = row[2::3], row[0::3]
            lines += b"\0" + line
        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        with open(path, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) +
                       chunk(b"IDAT", zlib.compress(lines)) + chunk(b"IEND", b""))
