"""Parts of the export benchmark; see bench/export."""
