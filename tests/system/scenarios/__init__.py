"""What the system ring proves. Each module is a story, each function of it a test."""
