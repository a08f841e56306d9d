"""The word processor's object model over LibreOffice."""
