"""Reads R data files with nothing but the standard library: .rda files and lazy-load stores (.rdx with .rdb).

`load(path)` gives a dictionary of objects by name; `table(object)` turns one into (column names, rows). Supported are
data frames, matrices, time series (ts, zoo, timeSeries) and vectors; missing values come as None, dates as ISO text.
Functions, byte code and environments with content are not supported.
"""

import bz2
import datetime
import gzip
import lzma
import math
import pathlib
import struct
import zlib


class RObject:
    """One R value: its type code, its payload and its attributes by name."""

    __slots__ = ('kind', 'value', 'attributes')

    def __init__(self, kind, value, attributes=None):
        self.kind = kind
        self.value = value
        self.attributes = attributes or {}

    def attribute(self, name):
        """The bare value of an attribute, or None."""
        found = self.attributes.get(name)
        return found.value if isinstance(found, RObject) else found

    def classes(self):
        return self.attribute('class') or []


SYMBOL, PAIRLIST, CLOSURE, ENVIRONMENT, PROMISE, LANGUAGE, CHARACTER = 1, 2, 3, 4, 5, 6, 9
LOGICAL, INTEGER, REAL, STRINGS, DOTS, LIST, EXPRESSION, RAW, S4 = 10, 13, 14, 16, 17, 19, 20, 24, 25
ALTREP, ATTRIBUTED_LIST, ATTRIBUTED_LANGUAGE, PERSISTENT, PACKAGE, NAMESPACE = 238, 239, 240, 247, 249, 250
NIL, REFERENCE = 254, 255
EMPTY_KINDS = (NIL, 241, 242, 251, 252, 253)
PAIR_KINDS = (PAIRLIST, LANGUAGE, PROMISE, CLOSURE, DOTS, ATTRIBUTED_LIST, ATTRIBUTED_LANGUAGE)
NA_INTEGER = -2147483648


class XdrReader:
    """Walks one serialized value in R's portable binary form."""

    def __init__(self, data):
        self._data = data
        self._at = 0
        self._seen = []
        self._vectors = {
            LOGICAL: self._integers, INTEGER: self._integers, REAL: self._reals, STRINGS: self._strings,
            LIST: self._items, EXPRESSION: self._items, RAW: self._raw, S4: lambda: None,
        }

    def read(self, skip=0):
        self._at = skip
        if self._data[self._at:self._at + 2] != b'X\n':
            raise ValueError('not a portable binary R file')
        self._at += 2
        version = self._integer()
        self._at += 8
        if version == 3:
            encoding_length = self._integer()
            self._at += encoding_length
        return self._item()

    def _integer(self):
        value = struct.unpack_from('>i', self._data, self._at)[0]
        self._at += 4
        return value

    def _length(self):
        length = self._integer()
        if length == -1:
            length = (self._integer() << 32) | (self._integer() & 0xffffffff)
        return length

    def _unpack(self, letter, size):
        count = self._length()
        values = struct.unpack_from('>%d%s' % (count, letter), self._data, self._at)
        self._at += size * count
        return values

    def _integers(self):
        return [None if v == NA_INTEGER else v for v in self._unpack('i', 4)]

    def _reals(self):
        return [None if v != v else v for v in self._unpack('d', 8)]

    def _strings(self):
        return [self._item().value for _ in range(self._length())]

    def _items(self):
        return [self._item() for _ in range(self._length())]

    def _raw(self):
        count = self._length()
        self._at += count
        return self._data[self._at - count:self._at]

    def _remember(self, thing):
        self._seen.append(thing)
        return thing

    def _item(self):
        flags = self._integer()
        kind = flags & 255
        if kind in EMPTY_KINDS:
            return RObject(kind, None)
        if kind == REFERENCE:
            return self._seen[((flags >> 8) or self._integer()) - 1]
        if kind in (PERSISTENT, PACKAGE, NAMESPACE, 248):
            self._integer()
            return self._remember(RObject(kind, self._strings()))
        if kind == SYMBOL:
            return self._remember(RObject(kind, self._item().value))
        if kind == ENVIRONMENT:
            self._integer()
            made = self._remember(RObject(kind, None))
            made.value = [self._item() for _ in range(4)]
            return made
        if kind in PAIR_KINDS:
            return self._pair(kind, flags)
        if kind == ALTREP:
            return self._compact()
        if kind == CHARACTER:
            return RObject(kind, self._text())
        if kind not in self._vectors:
            raise ValueError('R type %d is not supported' % kind)
        value = self._vectors[kind]()
        return RObject(kind, value, self._attributes() if flags & 0x200 else None)

    def _text(self):
        length = self._integer()
        if length == -1:
            return None
        raw = self._data[self._at:self._at + length]
        self._at += length
        try:
            return raw.decode('utf-8')
        except UnicodeDecodeError:
            return raw.decode('latin-1')

    def _pair(self, kind, flags):
        if flags & 0x200 or kind in (ATTRIBUTED_LIST, ATTRIBUTED_LANGUAGE):
            self._item()
        tag = self._item() if flags & 0x400 else None
        return RObject(kind, (tag, self._item(), self._item()))

    def _attributes(self):
        found = {}
        while True:
            flags = self._integer()
            if flags & 255 == NIL:
                return found
            if flags & 0x200:
                self._item()
            tag = self._item() if flags & 0x400 else None
            found[tag.value if tag else len(found)] = self._item()

    def _compact(self):
        """R's short forms of a vector: ranges, deferred texts and wrappers."""
        info, state, attributes = self._item(), self._item(), self._item()
        name = info.value[1].value
        found = pair_dictionary(attributes)
        if name in ('compact_intseq', 'compact_realseq'):
            count, start, step = state.value
            whole = name == 'compact_intseq'
            values = [start + k * step for k in range(int(count))]
            return RObject(INTEGER if whole else REAL, [int(v) for v in values] if whole else values, found)
        if name == 'deferred_string':
            texts = [None if v is None else '%.15g' % v for v in state.value[1].value]
            return RObject(STRINGS, texts, found)
        if name and name.startswith('wrap_'):
            inner = state.value[0] if isinstance(state.value, list) else state.value[1]
            return RObject(inner.kind, inner.value, found or inner.attributes)
        raise ValueError('R short form %s is not supported' % name)


def pair_dictionary(item):
    found = {}
    while item.kind in (PAIRLIST, ATTRIBUTED_LIST, ATTRIBUTED_LANGUAGE):
        tag, value, item = item.value
        found[tag.value if tag else len(found)] = value
    return found


def decompress(data):
    for magic, opener in ((b'\x1f\x8b', gzip.decompress), (b'BZh', bz2.decompress), (b'\xfd7zXZ\0', lzma.decompress),
                          (b'\x78', zlib.decompress)):
        if data.startswith(magic):
            return opener(data)
    return data


def decompress_chunk(data):
    """A chunk of a lazy-load store: four bytes of length, then a marker unless it is zlib."""
    marker = data[4:5]
    if marker == b'2':
        return bz2.decompress(data[5:])
    if marker == b'Z':
        filters = [{'id': lzma.FILTER_LZMA2, 'preset': 6}]
        return lzma.LZMADecompressor(lzma.FORMAT_RAW, filters=filters).decompress(data[5:])
    if marker == b'0':
        return data[5:]
    return zlib.decompress(data[4:])


class LazyStore:
    """The objects of a lazy-load store; each is unpacked when it is asked for."""

    def __init__(self, path):
        index = XdrReader(decompress(path.read_bytes())).read()
        top = dict(zip(index.attribute('names'), index.value))
        places = top['variables']
        self._places = dict(zip(places.attribute('names'), (p.value for p in places.value)))
        self._data = path.with_suffix('.rdb').read_bytes()

    def __getitem__(self, name):
        start, length = self._places[name][:2]
        return XdrReader(decompress_chunk(self._data[start:start + length])).read()


def load(path):
    """The objects of an .rda file or of an .rdx/.rdb pair, by name."""
    path = pathlib.Path(path)
    if path.suffix == '.rdx':
        return LazyStore(path)
    data = decompress(path.read_bytes())
    if data[:5] in (b'RDX2\n', b'RDX3\n'):
        return pair_dictionary(XdrReader(data).read(skip=5))
    return {'value': XdrReader(data).read()}


def iso(value, classes):
    if value is None:
        return None
    if 'Date' in classes:
        return (datetime.date(1970, 1, 1) + datetime.timedelta(days=math.floor(value))).isoformat()
    moment = datetime.datetime(1970, 1, 1) + datetime.timedelta(seconds=value)
    return moment.strftime('%Y-%m-%d %H:%M:%S').replace(' 00:00:00', '')


def column(item):
    """The values of one column: factors by their level texts, dates as ISO text."""
    classes = item.classes()
    if 'factor' in classes:
        levels = item.attribute('levels')
        return [None if v is None else levels[v - 1] for v in item.value]
    if 'POSIXlt' in classes:
        part = dict(zip(item.attribute('names'), item.value))
        return ['%04d-%02d-%02d' % (y + 1900, m + 1, d)
                for y, m, d in zip(part['year'].value, part['mon'].value, part['mday'].value)]
    if 'Date' in classes or 'POSIXct' in classes:
        return [iso(v, classes) for v in item.value]
    return list(item.value)


def regular_dates(description, count):
    """ISO dates of a regular series: the first day of each year, quarter or month."""
    start, _, frequency = description
    dates = []
    for k in range(count):
        at = start + k / frequency
        year = math.floor(at + 1e-6)
        period = int(round((at - year) * frequency))
        if frequency in (1, 4, 12):
            dates.append('%04d-%02d-01' % (year, period * (12 // int(frequency)) + 1))
        else:
            dates.append('%.5f' % at)
    return dates


def index_dates(index):
    classes = index.classes() or index.attribute('tclass') or []
    if 'yearmon' in classes or 'yearqtr' in classes:
        return regular_dates((index.value[0], None, 12 if 'yearmon' in classes else 4), len(index.value))
    if 'Date' in classes or 'POSIXct' in classes:
        return [iso(v, classes) for v in index.value]
    return column(index)


def table(item):
    """(column names, rows) of a data frame, matrix, time series or vector. The key column of a series is `date`."""
    if item.kind == S4 or 'timeSeries' in item.classes():
        return time_series(item)
    if item.kind == LIST and 'data.frame' in item.classes():
        return data_frame(item)
    if item.kind in (LOGICAL, INTEGER, REAL, STRINGS):
        return matrix(item)
    raise ValueError('no table: R type %s, class %s' % (item.kind, item.classes()))


def time_series(item):
    data = item.attributes.get('.Data', item)
    count, width = data.attribute('dim')
    units = [str(u) for u in item.attribute('units')]
    dates = [iso(v, ['POSIXct']) for v in item.attribute('positions')]
    return ['date'] + units, rows_by_column(dates, data.value, count, width)


def data_frame(item):
    names, columns = [], []
    row_names = item.attributes.get('row.names')
    if row_names and row_names.kind == STRINGS:
        names, columns = ['row'], [row_names.value]
    for name, part in zip(item.attribute('names'), item.value):
        dim = part.attribute('dim')
        if not dim or len(dim) != 2:
            names.append(name)
            columns.append(column(part))
            continue
        labels = part.attributes['dimnames'].value[1].value
        for k in range(dim[1]):
            names.append('%s.%s' % (name, labels[k]))
            columns.append(part.value[k * dim[0]:(k + 1) * dim[0]])
    return names, [list(row) for row in zip(*columns)]


def matrix(item):
    dim = item.attribute('dim')
    count, keys, key_name = dim[0] if dim else len(item.value), None, 'row'
    if 'tsp' in item.attributes:
        keys, key_name = regular_dates(item.attribute('tsp'), count), 'date'
    if 'index' in item.attributes:
        keys, key_name = index_dates(item.attributes['index']), 'date'
    if not dim or len(dim) != 2:
        keys = keys or item.attribute('names') or list(range(1, count + 1))
        return [key_name, 'value'], [list(row) for row in zip(keys, column(item))]
    labels = item.attributes['dimnames'].value
    keys = keys or labels[0].value or list(range(1, count + 1))
    return [key_name] + [str(n) for n in labels[1].value], rows_by_column(keys, item.value, count, dim[1])


def rows_by_column(keys, values, count, width):
    return [[keys[r]] + [values[c * count + r] for c in range(width)] for r in range(count)]
