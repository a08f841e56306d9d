"""A stand-in for Outlook: the part of its object model that the tests and the demo need, over a mailbox in memory."""
