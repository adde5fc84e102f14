"""Reads the native database of a statistics program: NAME.idx (text) with NAME.bin (little-endian float32).

The index has a comment line and then two lines a series: `id  title` and `M  1959.01 - 2022.09  n = 765`. The values of
all series follow each other in the order of the index; -999 stands for a missing one.
"""

import re
import struct

PERIODS = {'A': 1, 'Q': 4, 'M': 12}
MISSING = -999.0


def read(base):
    """Yields (series, observations): a dictionary of id, text, frequency, and a list of (ISO date, value)."""
    lines = base.with_suffix('.idx').read_text(encoding='latin-1').splitlines()[1:]
    lines = [line for line in lines if line.strip()]
    data = base.with_suffix('.bin').read_bytes()
    offset = 0
    for head, span in zip(lines[::2], lines[1::2]):
        name, text = re.match(r'(\S+)\s+(.*)', head).groups()
        frequency, start, count = re.match(r'(\S)\s+(\S+)\s*-\s*\S+\s+n\s*=\s*(\d+)', span).groups()
        values = struct.unpack_from('<%df' % int(count), data, offset)
        offset += 4 * int(count)
        dates = period_dates(start, PERIODS[frequency], int(count))
        yield ({'id': name, 'text': text, 'frequency': frequency},
               [(d, float('%.7g' % v)) for d, v in zip(dates, values) if v != MISSING])
    if offset != len(data):
        raise ValueError('%s: the index tells of %d bytes, the data has %d' % (base, offset, len(data)))


def period_dates(start, periods, count):
    year, period = (start.split('.') + ['1'])[:2]
    first = int(year) * periods + int(period) - 1
    return ['%04d-%02d-01' % (k // periods, k % periods * (12 // periods) + 1) for k in range(first, first + count)]
