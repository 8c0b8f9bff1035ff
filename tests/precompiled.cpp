// Nothing but the headers that the tests share.
