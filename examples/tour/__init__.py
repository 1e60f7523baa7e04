"""Draws the demos' desktop and writes their steps; see examples/make-tour."""
