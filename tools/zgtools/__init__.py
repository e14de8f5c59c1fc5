"""Shared modules of the tools that make the files under data/."""
