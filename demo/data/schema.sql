-- The demonstration database. Dates are ISO texts, identifiers are short texts or whole numbers, amounts are REAL in the
-- unit that the column name or the comment tells. Derived columns (previous, year_ago, stock_summary) are computed from
-- the rows themselves when the database is built.

CREATE TABLE source (                     -- where each table comes from
  table_name TEXT PRIMARY KEY, package TEXT NOT NULL, version TEXT NOT NULL, origin TEXT NOT NULL, licence TEXT NOT NULL,
  grade TEXT NOT NULL CHECK (grade IN ('A', 'B')),  -- A: public domain or open data licence; B: free package, third-party data
  note TEXT NOT NULL
) WITHOUT ROWID;

CREATE TABLE constant (                   -- short lists of codes that the page asks for
  "TYPE" INTEGER NOT NULL, "VALUE" INTEGER NOT NULL, "NAME" TEXT NOT NULL, "TYPE_DESC" TEXT NOT NULL, "FILTER1" INTEGER NOT NULL,
  PRIMARY KEY ("TYPE", "VALUE")
) WITHOUT ROWID;

-- Countries and currencies

CREATE TABLE country (
  code TEXT PRIMARY KEY, code3 TEXT NOT NULL UNIQUE, name TEXT NOT NULL, name_zh TEXT NOT NULL,
  region TEXT, region_zh TEXT, income TEXT, income_zh TEXT, capital TEXT, longitude REAL, latitude REAL,
  population INTEGER, gdp_ppp_usd REAL, literacy_pct REAL
) WITHOUT ROWID;
CREATE INDEX country_by_region ON country (region, income);

CREATE TABLE currency (code TEXT PRIMARY KEY, number INTEGER NOT NULL, name TEXT NOT NULL, name_zh TEXT NOT NULL) WITHOUT ROWID;

CREATE TABLE country_currency (
  country TEXT NOT NULL REFERENCES country, currency TEXT NOT NULL, valid_from TEXT NOT NULL DEFAULT '', valid_to TEXT,
  tender INTEGER NOT NULL, PRIMARY KEY (country, currency, valid_from)
) WITHOUT ROWID;

CREATE TABLE country_year (               -- gdp in constant 2000 US dollars
  country TEXT NOT NULL REFERENCES country, year INTEGER NOT NULL, population INTEGER, gdp_usd REAL, gdp_per_head_usd REAL,
  life_expectancy REAL, fertility REAL, infant_mortality REAL, PRIMARY KEY (country, year)
) WITHOUT ROWID;
CREATE INDEX country_year_by_year ON country_year (year);

CREATE TABLE indicator (
  id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE, name_zh TEXT NOT NULL, unit_zh TEXT NOT NULL, topic_zh TEXT NOT NULL
);
CREATE TABLE country_indicator (
  country TEXT NOT NULL REFERENCES country, indicator INTEGER NOT NULL REFERENCES indicator, year INTEGER NOT NULL,
  value REAL NOT NULL, PRIMARY KEY (country, indicator, year)
) WITHOUT ROWID;
CREATE INDEX country_indicator_by_indicator ON country_indicator (indicator, year);

CREATE TABLE indicator_definition (
  code TEXT PRIMARY KEY, name TEXT NOT NULL, description TEXT, collection TEXT, organisation TEXT
) WITHOUT ROWID;

-- Macro series

CREATE TABLE series_category (code TEXT PRIMARY KEY, name_zh TEXT NOT NULL, sort INTEGER NOT NULL) WITHOUT ROWID;

CREATE TABLE series (
  id TEXT PRIMARY KEY, title TEXT NOT NULL, title_zh TEXT, unit TEXT NOT NULL, unit_zh TEXT NOT NULL, adjustment TEXT NOT NULL,
  adjustment_zh TEXT NOT NULL, frequency TEXT NOT NULL CHECK (frequency IN ('A', 'Q', 'M')), frequency_zh TEXT NOT NULL,
  category TEXT NOT NULL REFERENCES series_category, area TEXT NOT NULL, discontinued INTEGER NOT NULL,
  first_date TEXT NOT NULL, last_date TEXT NOT NULL, observations INTEGER NOT NULL,
  last_value REAL NOT NULL, previous REAL, year_ago REAL
) WITHOUT ROWID;
CREATE INDEX series_by_category ON series (category, frequency);

CREATE TABLE observation (
  series TEXT NOT NULL REFERENCES series, date TEXT NOT NULL, value REAL NOT NULL, previous REAL, year_ago REAL,
  PRIMARY KEY (series, date)
) WITHOUT ROWID;
CREATE INDEX observation_by_date ON observation (date DESC, series);

CREATE TABLE yield_tenor (series TEXT PRIMARY KEY REFERENCES series, tenor_zh TEXT NOT NULL, months INTEGER NOT NULL) WITHOUT ROWID;

CREATE TABLE currency_pair (              -- rate: units of the quote currency for one unit of the base currency
  series TEXT PRIMARY KEY REFERENCES series, base TEXT NOT NULL REFERENCES currency, quote TEXT NOT NULL REFERENCES currency,
  name_zh TEXT NOT NULL
) WITHOUT ROWID;

CREATE TABLE fuel_price (                 -- retail prices in US dollars a gallon
  series TEXT PRIMARY KEY REFERENCES series, region TEXT NOT NULL, region_zh TEXT NOT NULL, fuel TEXT NOT NULL, fuel_zh TEXT NOT NULL,
  sort INTEGER NOT NULL
) WITHOUT ROWID;

CREATE TABLE trade_partner (              -- US trade in goods, million US dollars a month
  country TEXT PRIMARY KEY REFERENCES country, export_series TEXT NOT NULL REFERENCES series,
  import_series TEXT NOT NULL REFERENCES series
) WITHOUT ROWID;

-- Companies and stocks

CREATE TABLE sector (id INTEGER PRIMARY KEY, parent INTEGER NOT NULL, name TEXT NOT NULL, name_zh TEXT NOT NULL, sort INTEGER NOT NULL);

CREATE TABLE stock (                      -- listings of about 2009
  symbol TEXT PRIMARY KEY, secu_id INTEGER NOT NULL UNIQUE, name TEXT NOT NULL, exchange TEXT NOT NULL, market_value_musd REAL
) WITHOUT ROWID;
CREATE INDEX stock_by_exchange ON stock (exchange, market_value_musd DESC);

CREATE TABLE company (                    -- the 2000 largest of 2004; amounts in billion US dollars
  id INTEGER PRIMARY KEY, name TEXT NOT NULL, country TEXT REFERENCES country, domicile TEXT NOT NULL,
  sector INTEGER NOT NULL REFERENCES sector, sales REAL NOT NULL, profit REAL, assets REAL NOT NULL,
  market_value REAL NOT NULL, symbol TEXT, secu_id INTEGER
);
CREATE INDEX company_by_sector ON company (sector, id);
CREATE INDEX company_by_country ON company (country, id);
CREATE INDEX company_by_symbol ON company (symbol);

CREATE TABLE stock_price (                -- 500 large US stocks, July to December 2001
  symbol TEXT NOT NULL, date TEXT NOT NULL, close REAL NOT NULL, previous REAL, PRIMARY KEY (symbol, date)
) WITHOUT ROWID;
CREATE INDEX stock_price_by_date ON stock_price (date, symbol);

CREATE TABLE stock_summary (              -- of stock_price; returns and volatility in per cent
  symbol TEXT PRIMARY KEY, days INTEGER NOT NULL, first_date TEXT NOT NULL, last_date TEXT NOT NULL, close REAL NOT NULL,
  previous REAL NOT NULL, return_5d REAL, return_20d REAL, return_60d REAL, return_all REAL, high REAL NOT NULL,
  high_date TEXT NOT NULL, low REAL NOT NULL, low_date TEXT NOT NULL, volatility REAL, drawdown REAL
) WITHOUT ROWID;

CREATE TABLE blue_chip (symbol TEXT PRIMARY KEY, name TEXT NOT NULL, name_zh TEXT NOT NULL, company INTEGER REFERENCES company) WITHOUT ROWID;
CREATE TABLE blue_chip_price (            -- 30 stocks, daily, 1991 to 2000, adjusted for splits
  symbol TEXT NOT NULL REFERENCES blue_chip, date TEXT NOT NULL, close REAL NOT NULL, previous REAL, PRIMARY KEY (symbol, date)
) WITHOUT ROWID;
CREATE INDEX blue_chip_price_by_date ON blue_chip_price (date DESC, symbol);

CREATE TABLE firm (id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE, industry TEXT NOT NULL, company INTEGER REFERENCES company);
CREATE INDEX firm_by_company ON firm (company);
CREATE TABLE firm_year (                  -- amounts in million US dollars, employees in thousands, holdings in per cent
  firm INTEGER NOT NULL REFERENCES firm, year INTEGER NOT NULL, sales REAL, employees REAL, capital REAL, value REAL, tobin_q REAL,
  research REAL, patents INTEGER, citations INTEGER, institutions REAL, largest_holder REAL, quasi_indexed REAL, transient REAL,
  dedicated REAL, sp500 INTEGER NOT NULL, PRIMARY KEY (firm, year)
) WITHOUT ROWID;
CREATE INDEX firm_year_by_year ON firm_year (year, firm);

CREATE TABLE swiss_listing (symbol TEXT NOT NULL, isin TEXT NOT NULL, code TEXT PRIMARY KEY, name TEXT NOT NULL) WITHOUT ROWID;
CREATE TABLE exchange_year (exchange TEXT NOT NULL, year INTEGER NOT NULL, market_value_musd REAL NOT NULL, PRIMARY KEY (exchange, year)) WITHOUT ROWID;

-- Indices, funds, commodities, currencies by the half-hour

CREATE TABLE index_info (
  code TEXT PRIMARY KEY, name_zh TEXT NOT NULL, family TEXT NOT NULL, family_zh TEXT NOT NULL, sort INTEGER NOT NULL,
  first_date TEXT, last_date TEXT, last_level REAL, previous REAL
) WITHOUT ROWID;
CREATE TABLE index_level (
  code TEXT NOT NULL REFERENCES index_info, date TEXT NOT NULL, level REAL NOT NULL, previous REAL, PRIMARY KEY (code, date)
) WITHOUT ROWID;
CREATE INDEX index_level_by_date ON index_level (date DESC, code);

CREATE TABLE index_catalogue (
  symbol TEXT PRIMARY KEY, isin TEXT, name TEXT NOT NULL, region TEXT NOT NULL, class TEXT NOT NULL, currency TEXT, kind TEXT, start_date TEXT
) WITHOUT ROWID;

CREATE TABLE fund_strategy (code TEXT PRIMARY KEY, name_zh TEXT NOT NULL, sort INTEGER NOT NULL) WITHOUT ROWID;
CREATE TABLE fund_month (strategy TEXT NOT NULL REFERENCES fund_strategy, date TEXT NOT NULL, return_pct REAL NOT NULL, PRIMARY KEY (strategy, date)) WITHOUT ROWID;

CREATE TABLE commodity (code TEXT PRIMARY KEY, name_zh TEXT NOT NULL, unit_zh TEXT NOT NULL, frequency_zh TEXT NOT NULL, sort INTEGER NOT NULL) WITHOUT ROWID;
CREATE TABLE commodity_price (
  commodity TEXT NOT NULL REFERENCES commodity, date TEXT NOT NULL, price REAL NOT NULL, previous REAL, PRIMARY KEY (commodity, date)
) WITHOUT ROWID;
CREATE INDEX commodity_price_by_date ON commodity_price (date DESC, commodity);

CREATE TABLE exchange_tick (moment TEXT PRIMARY KEY, rate REAL NOT NULL, previous REAL) WITHOUT ROWID;  -- Swiss francs for one US dollar

-- Industries, states, public finance

CREATE TABLE industry (code TEXT PRIMARY KEY, name_zh TEXT NOT NULL, sort INTEGER NOT NULL) WITHOUT ROWID;
CREATE TABLE industry_month (             -- thousands of persons; rate in per cent
  industry TEXT NOT NULL REFERENCES industry, date TEXT NOT NULL, unemployed INTEGER NOT NULL, rate REAL NOT NULL, year_ago_rate REAL,
  PRIMARY KEY (industry, date)
) WITHOUT ROWID;
CREATE TABLE employment_group (code TEXT PRIMARY KEY, name_zh TEXT NOT NULL, level INTEGER NOT NULL, sort INTEGER NOT NULL) WITHOUT ROWID;
CREATE TABLE employment_month (           -- thousands of persons
  industry TEXT NOT NULL REFERENCES employment_group, date TEXT NOT NULL, employees REAL NOT NULL, previous REAL, year_ago REAL,
  PRIMARY KEY (industry, date)
) WITHOUT ROWID;

CREATE TABLE state (name TEXT PRIMARY KEY, name_zh TEXT NOT NULL, region INTEGER NOT NULL, region_zh TEXT NOT NULL) WITHOUT ROWID;
CREATE TABLE state_year (                 -- million US dollars of 1982; employees in thousands
  state TEXT NOT NULL REFERENCES state, year INTEGER NOT NULL, product REAL, private_capital REAL, public_capital REAL, highways REAL,
  water REAL, utilities REAL, employees REAL, unemployment REAL, PRIMARY KEY (state, year)
) WITHOUT ROWID;
CREATE TABLE state_gas_year (             -- consumption in million BTU; prices in US dollars a million BTU
  state TEXT NOT NULL REFERENCES state, year INTEGER NOT NULL, consumption REAL, gas_price REAL, electricity_price REAL,
  oil_price REAL, lpg_price REAL, degree_days REAL, income REAL, PRIMARY KEY (state, year)
) WITHOUT ROWID;

CREATE TABLE receipt_account (
  id INTEGER PRIMARY KEY, category TEXT NOT NULL, category_zh TEXT NOT NULL, subcategory TEXT NOT NULL, agency TEXT NOT NULL,
  bureau TEXT NOT NULL, name TEXT NOT NULL, on_budget INTEGER NOT NULL
);
CREATE INDEX receipt_account_by_category ON receipt_account (category);
CREATE TABLE receipt (                    -- thousand US dollars a fiscal year; years after 2013 are estimates
  account INTEGER NOT NULL REFERENCES receipt_account, year INTEGER NOT NULL, amount_kusd REAL NOT NULL, previous REAL,
  PRIMARY KEY (account, year)
) WITHOUT ROWID;
CREATE INDEX receipt_by_year ON receipt (year, account);
