"""Index levels, funds, commodities and half-hourly exchange rates."""

from . import rdata
from .companies import series_by_symbol
from .store import names, with_previous

MONTHS = 'JAN FEB MAR APR MAY JUN JUL AUG SEP OCT NOV DEC'.split()


def load(store, packages):
    load_indices(store, packages)
    load_funds(store, packages)
    load_commodities(store, packages)
    _, rows = rdata.table(rdata.load(packages.r_data('timeSeries', 'USDCHF'))['USDCHF'])
    moments = [(moment if len(moment) > 10 else moment + ' 00:00:00', rate) for moment, rate in rows]
    store.insert('exchange_tick', with_previous(moments))


def load_indices(store, packages):
    def read(package, name):
        return rdata.table(rdata.load(packages.r_data(package, name))[name])

    found = {}
    for name in ('DJIA8012', 'NYSESW', 'MSCISwitzerland'):
        found[name] = [tuple(row) for row in read('AER', name)[1] if row[1] is not None]
    found.update(series_by_symbol(*read('fBasics', 'SWXLP')))
    found.update(series_by_symbol(*read('fPortfolio', 'GCCINDEX')))
    found.update(series_by_symbol(*read('fPortfolio', 'SPISECTOR')))
    families, levels = [], []
    for k, row in enumerate(names('indices'), 1):
        rows = list(with_previous(found[row['code']]))
        levels += [(row['code'],) + point for point in rows]
        families.append((row['code'], row['name_zh'], row['family'], row['family_zh'], k, rows[0][0]) + rows[-1])
    store.insert('index_info', families)
    store.insert('index_level', levels)


def load_funds(store, packages):
    store.insert_names('fund_strategy', 'hedge_strategies', ('code', 'name_zh'), sort=True)
    head, rows = rdata.table(rdata.load(packages.r_data('fBasics', 'HedgeFund'))['HedgeFund'])
    dates = ['20%s-%02d-01' % (month[3:], MONTHS.index(month[:3]) + 1) for month in head[1:]]
    store.insert('fund_month', [(row[0], date, value) for row in rows for date, value in zip(dates, row[1:])])


def load_commodities(store, packages):
    store.insert_names('commodity', 'commodities', ('code', 'name_zh', 'unit_zh', 'frequency_zh'), sort=True)
    for name, columns in (('GoldSilver', {'gold': 'gold', 'silver': 'silver'}),
                          ('FrozenJuice', {'price': 'orange_juice'}),
                          ('PepperPrice', {'black': 'pepper_black', 'white': 'pepper_white'})):
        found = series_by_symbol(*rdata.table(rdata.load(packages.r_data('AER', name))[name]))
        for column, code in columns.items():
            store.insert('commodity_price', [(code,) + row for row in with_previous(found[column])])
