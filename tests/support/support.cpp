// Shared helpers of the tests go here.
