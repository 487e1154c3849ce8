<%@ LANGUAGE="VBScript" %>
<% Option Explicit %>
<html>
<head><title>How do you invest?</title></head>
<body>
<%
' risk.asp?amount=10000&q1=B&q2=C&q3=3 - answers A to E or 1 to 5.
Dim strategy, answers(3), number, title, description, parts, i
For i = 1 To 3
  answers(i) = Request("q" & i)
Next
Set strategy = Server.CreateObject("Amortix2.InvestmentStrategy")
strategy.AssetAllocation Request("amount"), answers, number, title, description, parts
%>
<h1>Profile <%= number %>: <%= Server.HTMLEncode(title) %></h1>
<p><%= Server.HTMLEncode(description) %></p>
<ul>
<% For i = 1 To 3 %>
  <li><%= parts(i, 0) %>: <%= FormatCurrency(parts(i, 1)) %></li>
<% Next %>
</ul>
</body>
</html>
