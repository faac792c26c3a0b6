// A precompiled header needs a library that it belongs to, and a library a source.
