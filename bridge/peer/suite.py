"""The suite's own object model: any UNO object by the names that it has itself, whatever their case."""

import uno

from failures import Disposed, EXCEPTION, Failure, TYPE_MISMATCH, UnoException, text_of
from handles import MISSING, NOTHING, NoSuchMember, Short, Single

# How a result of these UNO types travels; Python does not tell them apart.
KINDS = {"short": Short, "unsigned short": int, "byte": Short, "float": Single}


class SuiteSession:
    """One client's service manager and all objects that it has reached from there."""

    def __init__(self, context, paths, _surroundings, _pdf_folder):
        self.root = context.getServiceManager()
        self._paths = paths
        self._loaded = []
        self._members = {}
        local = uno.getComponentContext()
        self._introspection = local.ServiceManager.createInstance("com.sun.star.beans.Introspection")

    def end(self):
        """Close the documents that the client loaded and left open: nobody else could reach them."""
        for component in self._loaded:
            try:
                component.close(True)
            except (UnoException, AttributeError, RuntimeError):
                pass  # Closed by the client, or refuses; there is nobody left to tell.
        self._loaded = []

    def class_name(self, item):
        """Return a name that only objects with the same members share."""
        name = getattr(item, "ImplementationName", None) or getattr(item, "typeName", type(item).__name__)
        return f"suite {name} {hash(frozenset(self._names(item)))}"

    def _names(self, item):
        """Return the object's member names by their lower-case spelling."""
        holder = item.__dict__["value"] if hasattr(item, "__pyunostruct__") else item
        return {name.lower(): name for name in dir(holder)}

    def _exact(self, item, name):
        try:
            return self._names(item)[name.lower()]
        except KeyError:
            raise NoSuchMember from None

    def parameters(self, item, name):
        """Return an empty list for a member that exists (the suite knows no named arguments), else None."""
        return [] if name.lower() == "bridge_getstruct" or name.lower() in self._names(item) else None

    def _method(self, item, name):
        """Return the declaration of a method: its parameter names and its result's type name."""
        key = (self.class_name(item), name)
        if key not in self._members:
            method = self._introspection.inspect(item).getMethod(name, -1)
            names = [parameter.aName for parameter in method.getParameterInfos()]
            result = method.getReturnType()
            self._members[key] = (names, result.getName(), result.getTypeClass().value == "INTERFACE")
        return self._members[key]

    def call(self, item, name, arguments, named):
        if named or not name:
            raise NoSuchMember
        if name.lower() == "bridge_getstruct":
            return self._guarded(lambda: uno.createUnoStruct(*arguments))
        exact = self._exact(item, name)
        return self._guarded(lambda: self._call(item, exact, arguments))

    def _call(self, item, exact, arguments):
        member = getattr(item, exact)
        if not callable(member):
            if arguments:
                raise NoSuchMember
            return self._outward(exact, member)
        names, result_type, is_object = self._method(item, exact)
        arguments = [self._inward(name, value) for name, value in zip(names, arguments, strict=False)] + [
            *arguments[len(names) :]
        ]
        # An array that the client left out at the end is an empty one.
        arguments += [()] * (len(names) - len(arguments)) if len(names) - len(arguments) == 1 else []
        result = member(*arguments)
        if exact.lower() == "loadcomponentfromurl" and result is not None:
            self._loaded.append(result)
        if result is None:
            return NOTHING if is_object else None
        return self._outward(exact, KINDS[result_type](result) if result_type in KINDS else result)

    def put(self, item, name, arguments):
        exact = self._exact(item, name)
        if len(arguments) != 1:
            raise NoSuchMember
        self._guarded(lambda: setattr(item, exact, self._inward(exact, arguments[0])))

    def items(self, item):
        """Return what an enumeration or an indexed container holds."""
        if hasattr(item, "createEnumeration"):
            enumeration = self._guarded(item.createEnumeration)
            while enumeration.hasMoreElements():
                yield enumeration.nextElement()
        elif hasattr(item, "getByIndex"):
            for index in range(item.getCount()):
                yield item.getByIndex(index)
        else:
            raise NoSuchMember

    def _inward(self, name, value):
        if value is MISSING:
            return ()
        if isinstance(value, str):
            return self._paths.url_to_unix(value) if _holds_url(name) else value
        return value

    def _outward(self, name, value):
        return self._paths.url_to_windows(value) if isinstance(value, str) and _holds_url(name) else value

    @staticmethod
    def _guarded(body):
        try:
            return body()
        except Disposed as error:
            raise Failure(EXCEPTION, text_of(error) or "The object is disposed.", "LibreOffice") from error
        except UnoException as error:
            raise Failure(EXCEPTION, text_of(error), "LibreOffice") from error
        except (TypeError, SystemError) as error:  # What python-uno makes of a value that UNO cannot hold.
            raise Failure(TYPE_MISMATCH) from error


def _holds_url(name):
    """Tell whether a parameter or member of that name carries a URL: no other text is ever changed."""
    return "url" in name.lower() or name.lower() in ("getlocation", "location")
