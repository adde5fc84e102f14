"""Companies, stocks with their prices, firms by year, and other listings."""

import math
import re
import statistics

from . import rdata
from .store import names, with_previous

# Words that one list of companies writes and another leaves out.
COMMON_WORDS = set('INC CORP CORPORATION CO COMPANY COMPANIES COS LTD PLC LLC LP THE DE NEW CL A B HOLDINGS HOLDING GROUP '
                   'INCORPORATED INTL INTERNATIONAL SYS SYSTEMS'.split())
TRADING_DAYS = 252
LISTED_FROM, DELISTED_FROM = 1000001, 2000000
MONTHS = {m: k for k, m in enumerate('Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec'.split(), 1)}


def load(store, packages):
    store.insert_names('sector', 'sectors', ('id', 'parent', 'name', 'name_zh'), sort=True)
    load_stocks(store, packages)
    load_prices(store, packages)
    load_companies(store, packages)
    load_blue_chips(store, packages)
    load_firms(store, packages)
    load_listings(store, packages)


def simple_name(name):
    """A company's name without legal forms, for joining lists of different authors."""
    text = re.sub(r"\(.*?\)|/.*|['.]", '', name.upper()).replace('&', ' ')
    return ' '.join(word for word in re.split(r'[^A-Z0-9]+', text) if word and word not in COMMON_WORDS)


def load_stocks(store, packages):
    found = {}
    for exchange in ('nyse', 'nasdaq', 'amex'):
        _, rows = rdata.table(rdata.load(packages.r_data('fImport', exchange))[exchange + 'Listing'])
        for symbol, name, value, market in rows:
            amount = re.sub(r'[$, ]', '', value or '')
            found.setdefault(symbol, (name, market, float(amount) if re.search(r'\d', amount) else None))
    store.insert('stock', [(symbol, k) + rest for k, (symbol, rest) in enumerate(sorted(found.items()), LISTED_FROM)])


def series_by_symbol(head, rows):
    """{symbol: [(date, value)]} of a table with dates down and symbols across; columns without any value are left out."""
    found = {symbol: [(row[0], row[k]) for row in rows if row[k] is not None] for k, symbol in enumerate(head) if k}
    return {symbol: points for symbol, points in found.items() if points}


def load_prices(store, packages):
    found = series_by_symbol(*rdata.table(rdata.load(packages.r_data('strucchange', 'SP2001'))['SP2001']))
    store.insert('stock_price', [(s,) + row for s, points in sorted(found.items()) for row in with_previous(points)])
    store.insert('stock_summary', [(s,) + summary(points) for s, points in sorted(found.items())])


def summary(points):
    closes = [value for _, value in points]
    logs = [math.log(b / a) for a, b in zip(closes, closes[1:])]
    high, low = max(points, key=lambda p: p[1]), min(points, key=lambda p: p[1])
    peak, drawdown = closes[0], 0.0
    for value in closes:
        peak = max(peak, value)
        drawdown = min(drawdown, value / peak - 1)
    back = [change(closes, n) for n in (5, 20, 60, len(closes) - 1)]
    return (len(points), points[0][0], points[-1][0], closes[-1], closes[-2], *back, high[1], high[0], low[1], low[0],
            round(statistics.stdev(logs) * math.sqrt(TRADING_DAYS) * 100, 4), round(drawdown * 100, 4))


def change(closes, days):
    return round((closes[-1] / closes[-1 - days] - 1) * 100, 4) if 0 < days < len(closes) else None


def load_companies(store, packages):
    codes = country_codes(store)
    priced = {row[0] for row in store.query('SELECT symbol FROM stock_summary')}
    stocks = {symbol: (secu_id, name) for symbol, secu_id, name in store.query('SELECT symbol, secu_id, name FROM stock')}
    by_name = {simple_name(name): symbol for symbol, (_, name) in stocks.items()}
    given = {row['name']: row['symbol'] for row in names('company_symbols')}
    sectors = {row['name']: int(row['id']) for row in names('sectors')}
    _, rows = rdata.table(rdata.load(packages.r_data('HSAUR3', 'Forbes2000'))['Forbes2000'])
    taken, out = set(), []
    for _, rank, name, country, sector, sales, profit, assets, value in rows:
        symbol = given.get(name) or by_name.get(simple_name(name))
        if symbol not in priced or symbol in taken or country != 'United States':
            symbol = None
        taken.add(symbol)
        out.append((rank, name, codes.get(country), country, sectors[sector], sales, profit, assets, value, symbol,
                    security_id(symbol, rank, stocks)))
    store.insert('company', out)


def security_id(symbol, rank, stocks):
    """The identifier of the listing, or one of its own for a stock that had left the exchanges by then."""
    return symbol and (stocks[symbol][0] if symbol in stocks else DELISTED_FROM + rank)


def country_codes(store):
    codes = dict(store.query('SELECT name, code FROM country'))
    codes.update((row['name'], row['code']) for row in names('country_aliases'))
    return codes


def company_ids(store):
    return {name: key for key, name in store.query('SELECT id, name FROM company ORDER BY id DESC')}


def load_blue_chips(store, packages):
    companies = company_ids(store)
    store.insert('blue_chip', [(row['symbol'], row['name'], row['name_zh'], companies.get(row['company']))
                               for row in names('blue_chips')])
    found = series_by_symbol(*rdata.table(rdata.load(packages.r_data('fBasics', 'DowJones30'))['DowJones30']))
    store.insert('blue_chip_price', [(s,) + row for s, points in sorted(found.items()) for row in with_previous(points)])


def load_firms(store, packages):
    head, rows = rdata.table(rdata.load(packages.r_data('sandwich', 'InstInnovation'))['InstInnovation'])
    rows = [dict(zip(head, row)) for row in rows]
    companies = {simple_name(name): key for name, key in company_ids(store).items() if len(simple_name(name)) > 1}
    industries = {row['company']: row['industry'] for row in rows}
    ids = {name: k for k, name in enumerate(sorted(industries), 1)}
    store.insert('firm', [(ids[n], n, industries[n], companies.get(simple_name(n))) for n in sorted(ids)])
    fields = ('sales', 'employment', 'capital', 'value', 'tobinq', 'randd', 'patents', 'cites', 'institutions', 'top1',
              'quasiindexed', 'transient', 'dedicated')
    store.insert('firm_year', [(ids[r['company']], int(r['year'])) + tuple(r[f] for f in fields) + (int(r['sp500'] == 'yes'),)
                               for r in rows])


def load_listings(store, packages):
    _, rows = rdata.table(rdata.load(packages.r_data('fImport', 'swx'))['swxListing'])
    store.insert('swiss_listing', {row[2]: row for row in rows}.values())
    _, rows = rdata.table(rdata.load(packages.r_data('fImport', 'stoxx'))['stoxxListing'])
    store.insert('index_catalogue', {row[0]: tuple(row[:7]) + (short_date(row[7]),) for row in rows}.values())
    head, rows = rdata.table(rdata.load(packages.r_data('fBasics', 'Capitalization'))['Capitalization'])
    store.insert('exchange_year', [(row[0], int(year), row[k]) for row in rows for k, year in enumerate(head) if k])


def short_date(text):
    """`15-Jun-98` as ISO text; None for anything else."""
    found = re.match(r'(\d{1,2})-(\w{3})-(\d\d)$', text or '')
    if not found:
        return None
    year = int(found[3])
    return '%d-%02d-%02d' % (year + (1900 if year > 30 else 2000), MONTHS[found[2]], int(found[1]))
