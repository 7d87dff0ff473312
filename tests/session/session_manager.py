"""The desktop's session manager as far as a program at the end of the session meets it, over the system's own library:
each client that registers is asked to save itself, at the end once more, and is told to die when it has."""

import ctypes
import select
import time
from ctypes import CFUNCTYPE, POINTER, byref, c_char_p, c_int, c_ulong, c_void_p, cast

SAVE_GLOBAL, SAVE_LOCAL = 0, 1
# The library's table: a function for each, with data of ours behind it.
CALLBACKS = ("register", "interact_request", "interact_done", "save_request", "phase2_request", "done", "close",
             "properties", "delete_properties", "get_properties")


class Value(ctypes.Structure):
    _fields_ = [("length", c_int), ("bytes", c_void_p)]


class Property(ctypes.Structure):
    _fields_ = [("name", c_char_p), ("type", c_char_p), ("count", c_int), ("values", POINTER(Value))]


class SessionManager:
    """Clients find it by `address` in SESSION_MANAGER. `restart` is how the last one wants to be started again."""

    def __init__(self):
        self.ice, self.sm = ctypes.CDLL("libICE.so.6"), ctypes.CDLL("libSM.so.6")
        self.ice.IceComposeNetworkIdList.restype = c_char_p
        self.ice.IceAcceptConnection.restype = self.sm.SmsGenerateClientID.restype = c_void_p
        self.restart, self.saves, self.ending, self.clients, self.connections = None, 0, False, [], {}
        nothing = CFUNCTYPE(None, c_void_p, c_void_p)(lambda *_: None)
        self.functions = {
            "register": CFUNCTYPE(c_int, c_void_p, c_void_p, c_char_p)(self.register),
            "done": CFUNCTYPE(None, c_void_p, c_void_p, c_int)(self.done),
            "properties": CFUNCTYPE(None, c_void_p, c_void_p, c_int, POINTER(POINTER(Property)))(self.properties)}
        table = [self.functions.get(name, nothing) for name in CALLBACKS]

        @CFUNCTYPE(c_int, c_void_p, c_void_p, POINTER(c_ulong), POINTER(c_void_p), c_void_p)
        def connect(client, data, mask, callbacks, reason):
            mask[0] = (1 << len(CALLBACKS)) - 1
            for number, function in enumerate(table):
                callbacks[2 * number] = cast(function, c_void_p)
            return 1
        allow = CFUNCTYPE(c_int, c_char_p)(lambda host: 1)
        # The library's own handler ends the test with the first client that dies.
        died = CFUNCTYPE(None, c_void_p)(lambda client: None)
        self.kept = table, connect, allow, died  # for as long as the library calls them
        self.ice.IceSetIOErrorHandler(died)
        error, count, listeners = ctypes.create_string_buffer(256), c_int(), c_void_p()
        if not (self.sm.SmsInitialize(b"test", b"1", connect, None, allow, 256, error)
                and self.ice.IceListenForConnections(byref(count), byref(listeners), 256, error)):
            raise RuntimeError(error.value)
        self.address = self.ice.IceComposeNetworkIdList(count, listeners).decode()
        self.listeners = {}
        for one in cast(listeners, POINTER(c_void_p))[:count.value]:
            self.ice.IceSetHostBasedAuthProc(c_void_p(one), allow)
            self.listeners[self.ice.IceGetListenConnectionNumber(c_void_p(one))] = c_void_p(one)

    def register(self, client, data, previous):
        self.sm.SmsRegisterClientReply(c_void_p(client), c_void_p(self.sm.SmsGenerateClientID(c_void_p(client))))
        self.clients.append(client)
        self.sm.SmsSaveYourself(c_void_p(client), SAVE_LOCAL, 0, 0, 0)
        return 1

    def done(self, client, data, success):
        self.saves += 1
        if self.ending:
            self.sm.SmsDie(c_void_p(client))

    def properties(self, client, data, count, properties):
        for one in (properties[number].contents for number in range(count)):
            if one.name == b"RestartCommand":
                self.restart = [ctypes.string_at(value.bytes, value.length) for value in one.values[:one.count]]

    def end_session(self):
        self.ending = True
        for client in self.clients:
            self.sm.SmsSaveYourself(c_void_p(client), SAVE_GLOBAL, 1, 0, 0)

    def serve(self, until, patience=15):
        """Answers the clients until until() is true; returns whether it became so."""
        deadline = time.monotonic() + patience
        while not until():
            if time.monotonic() > deadline:
                return False
            for number in select.select([*self.listeners, *self.connections], [], [], 0.05)[0]:
                if number in self.listeners:
                    one = c_void_p(self.ice.IceAcceptConnection(self.listeners[number], byref(c_int())))
                    self.connections[self.ice.IceConnectionNumber(one)] = one
                elif self.ice.IceProcessMessages(self.connections[number], None, None) == 1:
                    del self.connections[number]
        return True
