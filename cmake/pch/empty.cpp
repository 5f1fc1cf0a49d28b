// The precompiled headers hang on this unit.
