namespace tarvo {}
