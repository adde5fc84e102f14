"""Loads public data sets, as ordinary packages carry them, into the demonstration database."""
