// Replaced by the first provider.
