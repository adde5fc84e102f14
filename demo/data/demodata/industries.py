"""Industries by month, states by year, and the accounts of public receipts."""

import csv
import io
import json

from . import rdata
from .macro import derived
from .store import names, with_previous

# The postal codes that the table of gas consumption writes.
GAS_STATES = {'NY': 'NEW_YORK', 'FL': 'FLORIDA', 'MI': 'MICHIGAN', 'TX': 'TEXAS', 'UT': 'UTAH', 'CA': 'CALIFORNIA'}


def load(store, packages):
    load_unemployment(store, packages)
    load_employment(store, packages)
    load_states(store, packages)
    load_receipts(store, packages)


def load_unemployment(store, packages):
    store.insert_names('industry', 'industries', ('code', 'name_zh'), sort=True)
    found = {}
    for row in json.loads(packages.npm_text('vega-datasets', 'data/unemployment-across-industries.json')):
        found.setdefault(row['series'], []).append(('%d-%02d-01' % (row['year'], row['month']), row['count'], row['rate']))
    for industry, rows in found.items():
        counts = {date: count for date, count, _ in rows}
        store.insert('industry_month', [(industry, date, counts[date], rate, year_ago) for date, rate, _, year_ago
                                        in derived(sorted((date, rate) for date, _, rate in rows))])


def load_employment(store, packages):
    store.insert_names('employment_group', 'employment_groups', ('code', 'name_zh', 'level'), sort=True)
    head, *rows = list(csv.reader(io.StringIO(packages.npm_text('vega-datasets', 'data/us-employment.csv'))))
    known = {row['code'] for row in names('employment_groups')}
    for k, group in enumerate(head):
        if group in known:
            points = [(row[0], float(row[k])) for row in rows if row[k]]
            store.insert('employment_month', [(group,) + row for row in derived(points)])


def load_states(store, packages):
    chinese = {row['name']: row['name_zh'] for row in names('states')}
    regions = {row['name']: row['name_zh'] for row in names('world') if row['kind'] == 'state_region'}
    _, rows = rdata.table(rdata.load(packages.r_data('plm', 'Produc'))['Produc'])
    states = {row[1]: row[3] for row in rows}
    store.insert('state', [(s, chinese[s], int(r), regions[str(r)]) for s, r in sorted(states.items())])
    store.insert('state_year', [(s, year, gsp, pc, pcap, hwy, water, util, emp, unemp)
                                for _, s, year, _, pcap, hwy, water, util, pc, gsp, emp, unemp in rows])
    _, rows = rdata.table(rdata.load(packages.r_data('AER', 'NaturalGas'))['NaturalGas'])
    store.insert('state_gas_year', [[GAS_STATES[row[1]], int(row[3])] + row[4:] for row in rows])


def load_receipts(store, packages):
    chinese = {row['name']: row['name_zh'] for row in names('receipt_categories')}
    accounts, amounts = [], []
    for k, row in enumerate(json.loads(packages.npm_text('vega-datasets', 'data/budget.json')), 1):
        category = row['Source category name']
        accounts.append((k, category, chinese[category], row['Source subcategory name'], row['Agency name'],
                         row['Bureau name'], row['Account name'], int(row['On- or off-budget'] == 'On-budget')))
        points = [(int(year), float(str(row[year]).replace(',', ''))) for year in sorted(filter(str.isdigit, row))
                  if row[year] not in (None, '')]
        amounts += [(k,) + point for point in with_previous(points)]
    store.insert('receipt_account', accounts)
    store.insert('receipt', amounts)
