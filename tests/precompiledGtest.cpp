// Nothing but what is compiled ahead for the tests.
