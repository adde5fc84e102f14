"""Series of the US economy and the lists that pick some of them out: yields, currency pairs, fuels, trade partners."""

import re

from . import gretl
from .store import names, with_previous

# Series that third parties own, and a projection.
LEFT_OUT = re.compile(r"Case-Shiller|Moody|Bond Buyer|Michigan|Potential")
FREQUENCIES = {'A': '年', 'Q': '季', 'M': '月'}
ADJUSTMENTS = {'SA': '季调', 'NSA': '未季调', 'SAAR': '季调年率'}


def load(store, packages):
    categories = [(row['code'], row['name_zh'], re.compile(row['pattern'])) for row in names('series_categories')]
    store.insert('series_category', [(code, name, k) for k, (code, name, _) in enumerate(categories, 1)])
    titles = {row['id']: row['title_zh'] for row in names('series_titles')}
    units = {row['unit']: row['unit_zh'] for row in names('units')}
    series, observations = [], []
    for found, points in gretl.read(packages.folder / 'usr/share/gretl/db/fedstl'):
        if LEFT_OUT.search(found['text']) or not points:
            continue
        rows = list(derived(points))
        observations += [(found['id'],) + row for row in rows]
        series.append(describe(found, rows, categories, titles, units))
    store.insert('series', series)
    store.insert('observation', observations)
    load_lists(store)


def describe(found, rows, categories, titles, units):
    parts = found['text'].rsplit(', ', 2)
    title, unit, adjustment = parts if len(parts) == 3 else (parts[0], 'Index', parts[-1])
    category = next(code for code, _, pattern in categories if pattern.search(title))
    unit = re.sub(r'\s+', ' ', unit)
    last = rows[-1]
    return (found['id'], title, titles.get(found['id']), unit, units.get(unit, unit), adjustment, ADJUSTMENTS[adjustment],
            found['frequency'], FREQUENCIES[found['frequency']], category, 'US', int('DISCONTINUED' in title), rows[0][0],
            last[0], len(rows), last[1], last[2], last[3])


def derived(points):
    """(date, value, previous value, value of a year before) of ordered (date, value) pairs."""
    by_date = dict(points)
    for date, value, previous in with_previous(points):
        yield date, value, previous, by_date.get('%d%s' % (int(date[:4]) - 1, date[4:]))


def load_lists(store):
    store.insert_names('yield_tenor', 'tenors', ('series', 'tenor_zh', 'months'))
    store.insert_names('trade_partner', 'trade_partners', ('country', 'export_series', 'import_series'))
    store.insert_names('currency_pair', 'currency_pairs', ('series', 'base', 'quote', 'name_zh'))
    parts = names('fuels')
    fuels = [row for row in parts if row['kind'] == 'fuel']
    regions = [row for row in parts if row['kind'] == 'region']
    store.insert('fuel_price', [
        ('gas%s%sm' % (fuel['prefix'], region['prefix']), region['name'], region['name_zh'], fuel['name'], fuel['name_zh'], k)
        for k, (region, fuel) in enumerate(((r, f) for r in regions for f in fuels), 1)])
