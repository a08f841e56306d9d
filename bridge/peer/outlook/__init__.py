"""A stand-in for Outlook: what the tests and the demo need of its object model, over a mailbox in memory."""
