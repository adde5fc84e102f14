"""The database under construction, and the small name lists beside the loaders."""

import csv
import pathlib
import sqlite3

FOLDER = pathlib.Path(__file__).resolve().parent.parent


def names(name):
    """The rows of names/NAME.csv as dictionaries."""
    with open(FOLDER / 'names' / (name + '.csv'), encoding='utf-8', newline='') as file:
        return list(csv.DictReader(file))


def with_previous(points):
    """(key, value, previous value) of ordered (key, value) pairs."""
    previous = None
    for key, value in points:
        yield key, value, previous
        previous = value


class Store:
    """A new SQLite file with the schema and no rows."""

    def __init__(self, path):
        self._connection = sqlite3.connect(path)
        self._connection.execute('PRAGMA journal_mode = OFF')
        self._connection.execute('PRAGMA synchronous = OFF')
        self._connection.executescript((FOLDER / 'schema.sql').read_text(encoding='utf-8'))

    def insert(self, table, rows, columns=None):
        """Inserts rows, sequences in the order of the table's columns or of those named."""
        rows = [tuple(row) for row in rows]
        if not rows:
            raise ValueError('no rows for the table %s' % table)
        marks = ', '.join('?' * len(rows[0]))
        head = '%s (%s)' % (table, ', '.join(columns)) if columns else table
        try:
            self._connection.executemany('INSERT INTO %s VALUES (%s)' % (head, marks), rows)
        except sqlite3.Error as fault:
            raise ValueError('%s: %s' % (table, fault)) from fault

    def insert_names(self, table, name, columns, sort=False):
        """Inserts the named columns of names/NAME.csv, with a running number behind them where asked."""
        rows = [[row[c.strip('"')] for c in columns] + ([k] if sort else []) for k, row in enumerate(names(name), 1)]
        self.insert(table, rows, list(columns) + (['sort'] if sort else []))

    def query(self, sql, *values):
        return self._connection.execute(sql, values).fetchall()

    def counts(self):
        tables = [row[0] for row in self.query("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name")]
        return [(table, self.query('SELECT count(*) FROM "%s"' % table)[0][0]) for table in tables]

    def write_sources(self, packages):
        """Fills the table of sources, and fails where a table is without one."""
        rows = [(table, row['package'], packages.version(row['package']), row['origin'], row['licence'], row['grade'],
                 row['note'] or '') for row in csv_sources() for table in row['tables'].split()]
        self.insert('source', rows)
        own = {'source', 'constant'}
        missing = [t for t, _ in self.counts() if t not in own and t not in {row[0] for row in rows}]
        if missing:
            raise ValueError('tables without a source: ' + ', '.join(missing))

    def close(self):
        self._connection.execute('ANALYZE')
        self._connection.commit()
        broken = self.query('PRAGMA foreign_key_check')
        if broken:
            raise ValueError('%d rows refer to rows that are not there, the first in %s' % (len(broken), broken[0][0]))
        self._connection.close()


def csv_sources():
    with open(FOLDER / 'sources.csv', encoding='utf-8', newline='') as file:
        return list(csv.DictReader(file))
