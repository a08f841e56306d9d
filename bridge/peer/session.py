"""What a client's session over an object model written in Python offers, whichever model it is."""

import binding
from failures import Failure, PEER_GONE


class ModelSession:
    """The members of the objects, by name; all of it fails once the program behind the session has ended."""

    MODEL = ""  # Begins the names of the objects' classes.

    def is_over(self):
        """Tell whether the program behind the session has ended."""
        raise NotImplementedError

    def guarded(self, body):
        """Run a call's body, and turn what the model's foundations raise into a failure of the model."""
        return body()

    def class_name(self, item):
        """Return a name that only objects with the same members share."""
        return f"{self.MODEL} {type(item).__name__}"

    def parameters(self, item, name):
        """Return the names of a member's parameters, or None where the object has no such member."""
        return binding.parameters(item, name)

    def call(self, item, name, arguments, named):
        """Read a property or call a method."""
        self._require()
        return self.guarded(lambda: binding.call(item, name, arguments, named))

    def put(self, item, name, arguments):
        """Write a property."""
        self._require()
        self.guarded(lambda: binding.put(item, name, arguments))

    def items(self, item):
        """Return what a collection holds."""
        self._require()
        if not isinstance(item, binding.Collection):
            raise Failure.member_not_found()
        return item.all()

    def _require(self):
        if self.is_over():
            raise Failure(PEER_GONE)
