# Files at the top of the module: page shell, views, trees, dialogs.
