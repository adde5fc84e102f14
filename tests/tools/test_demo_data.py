#!/usr/bin/env python3
"""Tests of the demonstration's loaders and of the check of its view documents."""

import json
import os
import pathlib
import sqlite3
import struct
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / 'demo/data'))

from demodata import companies, countries, gretl, macro, rdata  # noqa: E402


class Scratch(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)


class Readers(Scratch):
    def write_series(self, values):
        (self.folder / 'x.idx').write_text('# comment\ngdp  Product, Bil. of $, SA\nQ  1999.3 - 2000.2  n = 4\n'
                                           'pop  People, Thous., NSA\nA  2001 - 2002  n = 2\n')
        (self.folder / 'x.bin').write_bytes(struct.pack('<%df' % len(values), *values))
        return list(gretl.read(self.folder / 'x'))

    def test_series_follow_each_other_and_leave_missing_values_out(self):
        (first, points), (second, years) = self.write_series([1.5, -999, 3.52, 4, 10, 11])

        self.assertEqual(first, {'id': 'gdp', 'text': 'Product, Bil. of $, SA', 'frequency': 'Q'})
        self.assertEqual(points, [('1999-07-01', 1.5), ('2000-01-01', 3.52), ('2000-04-01', 4.0)])
        self.assertEqual((second['id'], years), ('pop', [('2001-01-01', 10.0), ('2002-01-01', 11.0)]))

    def test_data_longer_than_its_index_is_refused(self):
        with self.assertRaisesRegex(ValueError, 'tells of 24 bytes, the data has 28'):
            self.write_series([1, 2, 3, 4, 5, 6, 7])

    def test_r_values_keep_factors_dates_and_missing_values(self):
        def xdr(*numbers):
            return b'X\n' + struct.pack('>%di' % len(numbers), *numbers)

        numbers = rdata.XdrReader(xdr(2, 0, 0, rdata.INTEGER, 3, 7, rdata.NA_INTEGER, -1)).read()
        self.assertEqual(numbers.value, [7, None, -1])
        self.assertEqual(rdata.regular_dates((1999.75, 2000, 4), 2), ['1999-10-01', '2000-01-01'])
        factor = rdata.RObject(rdata.INTEGER, [2, None], {'class': rdata.RObject(rdata.STRINGS, ['factor']),
                                                         'levels': rdata.RObject(rdata.STRINGS, ['a', 'b'])})
        self.assertEqual(rdata.column(factor), ['b', None])
        with self.assertRaisesRegex(ValueError, 'not a portable binary R file'):
            rdata.XdrReader(b'A\n').read()


class Values(unittest.TestCase):
    def test_amounts_in_free_text_give_value_and_year(self):
        for text, expected in (('$5.771 billion (2012 est.) ++ $5.786 billion (2011 est.)', [(5.771e9, 2012), (5.786e9, 2011)]),
                               ('-3.2% of GDP (2013)', [(-3.2, 2013)]), ('NA', []), (None, []), ('1,234', [(1234.0, None)])):
            with self.subTest(text=text):
                self.assertEqual([(round(v, 2), y) for v, y in countries.numbers(text)], expected)

    def test_a_point_knows_its_predecessor_and_the_year_before(self):
        points = [('2000-01-01', 1), ('2000-02-01', 2), ('2001-02-01', 3)]
        self.assertEqual(list(macro.derived(points)),
                         [('2000-01-01', 1, None, None), ('2000-02-01', 2, 1, None), ('2001-02-01', 3, 2, 2)])

    def test_names_of_one_company_meet_without_their_legal_forms(self):
        self.assertEqual(companies.simple_name('Agilent Technologies, Inc.'), companies.simple_name('Agilent Technologies'))
        self.assertEqual(companies.short_date('15-Jun-98'), '1998-06-15')
        self.assertIsNone(companies.short_date('unknown'))


class Build(Scratch):
    def test_missing_packages_are_named_and_the_old_database_stays(self):
        target = self.folder / 'demo.sqlite'
        target.write_text('old')
        done = subprocess.run([sys.executable, str(ROOT / 'demo/data/build'), '--cache', str(self.folder / 'cache'),
                               '--out', str(target)], env=dict(os.environ, PATH='/nowhere'), capture_output=True, text=True)

        self.assertEqual(done.returncode, 1)
        self.assertIn('gretl-data', done.stderr)
        self.assertIn('the command npm is not installed', done.stderr)
        self.assertEqual(target.read_text(), 'old')
        self.assertEqual(sorted(p.name for p in self.folder.iterdir()), ['cache', 'demo.sqlite'])


class ViewCheck(Scratch):
    def check(self, **changes):
        with sqlite3.connect(self.folder / 'x.sqlite') as database:
            database.execute('CREATE TABLE IF NOT EXISTS t AS SELECT 1 AS A, 2 AS B')
        view = {'id': 7, 'name': 'x', 'sql': 'SELECT A, B FROM t', 'bands': [{'FieldName': 'A', 'Caption': 'a'}], **changes}
        (self.folder / 'views/x').mkdir(parents=True, exist_ok=True)
        (self.folder / 'views/x/7.json').write_text(json.dumps(view))
        leaf = {'code': 11, 'caption': 'leaf', 'view': 7}
        (self.folder / 'views/navigation.json').write_text(json.dumps({'topics': [{'code': 1, 'name': 't', 'nodes': [leaf]}]}))
        item = {'itemName': 'leaf', 'obj_vw_id': '7'}
        (self.folder / 'menu.json').write_text(json.dumps({'menubar': [{'P_NODE_CODE': 1, 'menuItem': [item]}]}))
        done = subprocess.run([sys.executable, str(ROOT / 'tools/check-demo-views'), '--db', str(self.folder / 'x.sqlite'),
                               '--views', str(self.folder / 'views'), '--menu', str(self.folder / 'menu.json')],
                              capture_output=True, text=True)
        return done.returncode, done.stdout.splitlines()[0]

    def test_each_fault_is_told_with_its_place(self):
        self.assertEqual(self.check(), (0, '1 views, 0 faults'))
        for changes, line in (
                ({'sql': 'SELECT A FROM u'}, 'x/7.json / sql: no such table: u'),
                ({'sql': 'SELECT A FROM t WHERE A = 5'}, 'x/7.json / sql: no row with the default parameters'),
                ({'bands': [{'children': [{'FieldName': 'C'}]}]}, 'x/7.json / bands[0].children[0].FieldName: no column "C" in sql'),
                ({'childViews': [{'view': 8, 'link': {}}]}, 'x/7.json / childViews[0].view: no view 8'),
                ({'filters': [{'ClassName': 'TextEdit', 'FieldName': 'C'}]}, 'x/7.json / filters[0].FieldName: no column "C"'),
                ({'filters': [{'ClassName': 'CheckComboBox', 'FieldName': 'B', 'NameValues': '3=3'}]},
                 'x/7.json / filters[0].NameValues: no row has "3"'),
                ({'bands': [{'FieldName': 'A', 'Url': 'view://subjectpage?objvwid=9'}]}, 'x/7.json / bands[0].Url: no view 9')):
            with self.subTest(line=line):
                self.assertEqual(self.check(**changes), (1, line))


class Coverage(unittest.TestCase):
    """Some page of the demonstration shows each thing that a document can ask for."""

    @classmethod
    def setUpClass(cls):
        cls.views = [json.loads(path.read_text()) for path in sorted((ROOT / 'demo/views').glob('*/*.json'))]
        cls.columns = [node for view in cls.views for node in leaves(view.get('bands', []))]
        cls.filters = [row for view in cls.views for row in view.get('filters', [])]

    def assert_used(self, wanted, used):
        self.assertEqual(set(wanted.split()) - {str(word) for word in used}, set())

    def test_filter_controls_and_operators(self):
        self.assert_used('TextEdit KeywordsBox DateEdit DatetimeInterval DecimalTextEditInterval ComboBox CheckComboBox SimpleYear MultYear '
                         'ReportDateSimple ReportDateSimple2 ReportDateSimple5 YearMonthInterval YearMonthSimple UnitFactorCombobox VirtualCntrl '
                         'F9SecuIdCntrl F9COMIDCntrl LabelControl SimpleButtonGetData SimpleButtonSaveToExcel',
                         (row['ClassName'] for row in self.filters))
        self.assert_used('>= > < <= = <> LIKE IN NotIn', (row.get('Operator') for row in self.filters))
        self.assert_used('DataSourceName DataSourceFilter DataSourceFilterParams', (key for row in self.filters for key in row))

    def test_columns_bands_and_formulas(self):
        self.assert_used('BandedGridColumnWithUnit MemoExEdit HyperLinkEdit BandedGridColumnWithRating',
                         (node.get('ColumnType') for node in self.columns))
        self.assert_used('CellStyleExpression UnboundExpression StatExpression Url NoSort Visible TextAlignment',
                         (key for node in self.columns for key in node))
        formulas = ' '.join(node.get('UnboundExpression', '').replace('(', ' ') for node in self.columns)
        self.assert_used('SUM MAX AVERAGE GEOMEAN', formulas.split())
        self.assertTrue(any('{[' in node['Caption'] for node in self.columns))
        self.assertGreaterEqual(len({node['UnitCategory'] for node in self.columns if 'UnitCategory' in node}), 5)
        self.assertGreaterEqual(max(depth(view.get('bands', [])) for view in self.views), 3)

    def test_kinds_of_views_and_charts(self):
        self.assert_used('cross chart childViews block', (key for view in self.views for key in view))
        self.assert_used('IsGroup FrozenCount VGridColHeaderField IsGetChartData isShowBlock IsCrossSortByDesc',
                         (key for view in self.views for key in view.get('properties', {})))
        charts = [view['chart'] for view in self.views if 'chart' in view]
        series = [row for chart in charts for row in chart['ChartDataConfigs']]
        self.assert_used('Pie XYPlot Line LineSymbols LineSmoothed Area AreaStacked AreaStacked100pc Column ColumnStacked',
                         [x.get('ChartType') for x in charts + series])
        self.assert_used('1 2 3 4', (chart['XDisplayDataPattern'] for chart in charts))


def leaves(nodes):
    for node in nodes:
        yield from leaves(node['children']) if 'children' in node else [node]


def depth(nodes):
    return max((1 + depth(node.get('children', [])) for node in nodes), default=0)


if __name__ == '__main__':
    unittest.main()
